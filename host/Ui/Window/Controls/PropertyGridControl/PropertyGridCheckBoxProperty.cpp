#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"

#include <utility>

namespace qev::ui {

namespace {

PropertyGridRowState checkBoxState(std::string const& name, CheckState checkState,
                                   std::string const& description)
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::CheckBox;
    state.name = name;
    state.description = description;
    state.checkState = checkState;
    return state;
}

PropertyGridRowState checkBoxWithText(std::string const& name, CheckState checkState,
                                      std::string const& value, std::string const& description)
{
    auto state = checkBoxState(name, checkState, description);
    state.valueKind = PropertyGridRowState::ValueKind::Text;
    state.text = value;
    return state;
}

PropertyGridRowState checkBoxWithNumber(std::string const& name, CheckState checkState, double value,
                                        std::string const& description)
{
    auto state = checkBoxState(name, checkState, description);
    state.valueKind = PropertyGridRowState::ValueKind::Number;
    state.number = value;
    return state;
}

} // namespace

PropertyGridCheckBoxProperty::PropertyGridCheckBoxProperty(std::string const& name, CheckState state,
                                                           std::string const& description)
    : PropertyGridProperty(checkBoxState(name, state, description))
{
}

PropertyGridCheckBoxProperty::PropertyGridCheckBoxProperty(std::string const& name, CheckState state,
                                                           std::string const& value,
                                                           std::string const& description)
    : PropertyGridProperty(checkBoxWithText(name, state, value, description))
{
}

PropertyGridCheckBoxProperty::PropertyGridCheckBoxProperty(std::string const& name, CheckState state,
                                                           double value, std::string const& description)
    : PropertyGridProperty(checkBoxWithNumber(name, state, value, description))
{
}

PropertyGridCheckBoxProperty::PropertyGridCheckBoxProperty(
    std::shared_ptr<PropertyGridPropertyInterface> existing)
    : PropertyGridProperty(std::move(existing))
{
}

PropertyGridCheckBoxProperty::~PropertyGridCheckBoxProperty() = default;

CheckState PropertyGridCheckBoxProperty::getCheckState() const
{
    auto const* const row = requireInterface("getCheckState");
    return row ? row->getCheckState() : CheckState();
}

void PropertyGridCheckBoxProperty::setValueDisplayMode(ValueDisplayMode mode)
{
    if (auto* const row = requireInterface("setValueDisplayMode"))
        row->setValueDisplayMode(mode);
}

PropertyGridCheckBoxProperty::CheckBoxClickedHandlers&
PropertyGridCheckBoxProperty::getOnCheckBoxClickedHandlers(
    std::shared_ptr<PropertyGridControl> const& /*control*/)
{
    if (auto* const row = requireInterface("getOnCheckBoxClickedHandlers"))
        return row->getCheckBoxClickedHandlers();
    if (!m_checkBoxHandlersOfNoRow)
        m_checkBoxHandlersOfNoRow = std::make_unique<CheckBoxClickedHandlers>();
    return *m_checkBoxHandlersOfNoRow;
}

} // namespace qev::ui
