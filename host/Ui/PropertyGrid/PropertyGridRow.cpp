#include "Ui/PropertyGrid/PropertyGridRow.h"

#include "Core/Assert/Assert.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Ui/PropertyGrid/PropertyGridModel.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include <utility>

namespace qev::ui {

PropertyGridRow::PropertyGridRow(PropertyGridRowState state)
    : m_state(std::move(state))
{
}

PropertyGridRow::~PropertyGridRow()
{
    for (auto const& child : m_children)
        child->setPlace(nullptr, nullptr);
}

std::shared_ptr<PropertyGridRow> PropertyGridRow::getShared()
{
    return std::static_pointer_cast<PropertyGridRow>(weak_from_this().lock());
}

void PropertyGridRow::setNumber(std::optional<double> number)
{
    m_state.number = number;
    changed();
}

void PropertyGridRow::setText(std::string text)
{
    m_state.text = std::move(text);
    changed();
}

void PropertyGridRow::setCheckState(CheckState state)
{
    m_state.checkState = state;
    changed();
}

void PropertyGridRow::renew(PropertyGridRowState state,
                            std::unique_ptr<unit::QuantityPresentationBase> presentation)
{
    m_state = std::move(state);
    m_presentation = std::move(presentation);
    changed();
}

void PropertyGridRow::setPlace(PropertyGridModel* model, PropertyGridRow* parent)
{
    m_model = model;
    m_parent = parent;
    for (auto const& child : m_children)
        child->setPlace(model, this);
}

bool PropertyGridRow::getStringValue(std::string& value) const
{
    switch (m_state.valueKind) {
    case PropertyGridRowState::ValueKind::None:
        return false;
    case PropertyGridRowState::ValueKind::Text:
        value = m_state.text;
        return true;
    case PropertyGridRowState::ValueKind::Number:
        value = m_state.number ? PropertyGridNumber::getShownText(*m_state.number, m_presentation.get()) : "";
        return true;
    }
    return false;
}

bool PropertyGridRow::getDoubleValue(double& value) const
{
    if (m_state.valueKind != PropertyGridRowState::ValueKind::Number || !m_state.number)
        return false;
    value = *m_state.number;
    return true;
}

void PropertyGridRow::setValue(std::string const& text, bool notify)
{
    if (m_state.valueKind == PropertyGridRowState::ValueKind::Text) {
        setText(text);
    } else if (m_state.valueKind == PropertyGridRowState::ValueKind::Number) {
        if (text.empty())
            setNumber(std::nullopt);
        else if (auto const number = PropertyGridNumber::read(text, m_presentation.get()))
            setNumber(number);
    }
    if (notify && m_model)
        m_model->notifyRowEdited(*this);
}

void PropertyGridRow::setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase> presentation)
{
    m_presentation = std::move(presentation);
    if (m_presentation && m_state.valueKind == PropertyGridRowState::ValueKind::Text) {
        m_state.valueKind = PropertyGridRowState::ValueKind::Number;
        m_state.number = PropertyGridNumber::read(m_state.text, m_presentation.get());
        m_state.text.clear();
    }
    changed();
}

void PropertyGridRow::addSubProperty(std::shared_ptr<PropertyGridPropertyInterface> property)
{
    auto row = std::dynamic_pointer_cast<PropertyGridRow>(std::move(property));
    if (!row) {
        assert::report("Property belongs to another back end.", "qev::ui::PropertyGridRow::addSubProperty",
                       "Ui/PropertyGrid/PropertyGridRow");
        return;
    }
    if (m_model)
        m_model->notifyRowAboutToBeInserted(this, m_children.size());
    row->setPlace(m_model, this);
    m_children.push_back(std::move(row));
    if (m_model)
        m_model->notifyRowInserted(this, m_children.size() - 1);
}

void PropertyGridRow::setDescription(std::string const& description)
{
    m_state.description = description;
    changed();
}

void PropertyGridRow::addOption(std::string const& text, bool enabled)
{
    m_state.options.push_back({text, enabled});
    changed();
}

void PropertyGridRow::setOptionsOnly(bool optionsOnly)
{
    m_state.optionsOnly = optionsOnly;
    changed();
}

void PropertyGridRow::allowEdit(bool allowed)
{
    m_state.allowEdit = allowed;
    changed();
}

void PropertyGridRow::enable(bool enabled)
{
    m_state.enabled = enabled;
    changed();
}

void PropertyGridRow::setEmptyState(bool active)
{
    m_state.emptyState = active;
    changed();
}

void PropertyGridRow::setHint(std::string const& hint)
{
    m_state.hint = hint;
    changed();
}

void PropertyGridRow::setBoldFontStyleForNameAndValue()
{
    m_state.bold = true;
    changed();
}

void PropertyGridRow::setBackgroundColour(attr::Colour const& colour)
{
    m_state.backgroundColour = colour;
    changed();
}

void PropertyGridRow::setAlignment(int alignment)
{
    if (alignment < 0 || alignment > static_cast<int>(PropertyGridAlignment::Right))
        return;
    m_state.alignment = static_cast<PropertyGridAlignment>(alignment);
    changed();
}

void PropertyGridRow::setHorizontalLine(int horizontalLine)
{
    if (horizontalLine < 0 || horizontalLine > static_cast<int>(PropertyGridHorizontalLine::AboveAndBelow))
        return;
    m_state.horizontalLine = static_cast<PropertyGridHorizontalLine>(horizontalLine);
    changed();
}

void PropertyGridRow::setNameIndentationInCharacters(unsigned int characters)
{
    m_state.nameIndentationInCharacters = characters;
    changed();
}

void PropertyGridRow::showButton(bool shown)
{
    using propertygridcontrol::button::VisibleState;
    m_state.buttonVisibleState = shown ? VisibleState::Visible : VisibleState::Hidden;
    changed();
}

void PropertyGridRow::setValueDisplayMode(ValueDisplayMode mode)
{
    m_state.valueDisplayMode = mode;
    changed();
}

void PropertyGridRow::changed()
{
    if (m_model)
        m_model->notifyRowChanged(*this);
}

} // namespace qev::ui
