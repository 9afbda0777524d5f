#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include "Core/Assert/Assert.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <utility>

namespace qev::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::PropertyGridProperty::" + std::string(operation),
                   "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty");
}

PropertyGridRowState groupState(std::string const& name)
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::Group;
    state.name = name;
    return state;
}

PropertyGridRowState valueState(std::string const& name, std::string const& description, bool readOnly)
{
    PropertyGridRowState state;
    state.kind = PropertyGridRowState::Kind::Value;
    state.name = name;
    state.description = description;
    state.allowEdit = !readOnly;
    return state;
}

PropertyGridRowState textState(std::string const& name, std::string const& value,
                               std::string const& description, bool readOnly)
{
    auto state = valueState(name, description, readOnly);
    state.valueKind = PropertyGridRowState::ValueKind::Text;
    state.text = value;
    return state;
}

PropertyGridRowState numberState(std::string const& name, double value, std::string const& description,
                                 bool readOnly)
{
    auto state = valueState(name, description, readOnly);
    state.valueKind = PropertyGridRowState::ValueKind::Number;
    state.number = value;
    return state;
}

} // namespace

PropertyGridProperty::PropertyGridProperty(std::string const& name)
    : PropertyGridProperty(groupState(name))
{
}

PropertyGridProperty::PropertyGridProperty(std::string const& name, std::string const& value,
                                           std::string const& description, bool readOnly)
    : PropertyGridProperty(textState(name, value, description, readOnly))
{
}

PropertyGridProperty::PropertyGridProperty(std::string const& name, double value,
                                           std::string const& description, bool readOnly)
    : PropertyGridProperty(numberState(name, value, description, readOnly))
{
}

PropertyGridProperty::PropertyGridProperty(std::shared_ptr<PropertyGridPropertyInterface> existing)
    : m_existing(std::move(existing))
{
}

PropertyGridProperty::PropertyGridProperty(std::shared_ptr<PropertyGridPropertyInterface> existing,
                                           std::unique_ptr<PropertyGridPropertyInterface> created)
    : m_existing(std::move(existing))
    , m_created(std::move(created))
{
}

PropertyGridProperty::PropertyGridProperty(PropertyGridRowState state)
    : m_created(details::WindowInterfaceFactory::createPropertyGridRow(std::move(state)))
{
}

PropertyGridProperty::~PropertyGridProperty() = default;
PropertyGridProperty::PropertyGridProperty(PropertyGridProperty&&) noexcept = default;
PropertyGridProperty& PropertyGridProperty::operator=(PropertyGridProperty&&) noexcept = default;

PropertyGridPropertyInterface* PropertyGridProperty::getActiveInterface() const
{
    if (m_created && m_existing)
        reportFrom("getActiveInterface",
                   "Existing and new property objects can't both be set at the same time.");
    if (!m_created && !m_existing)
        reportFrom("getActiveInterface", "Property not initialized.");
    return m_created ? m_created.get() : m_existing.get();
}

std::string PropertyGridProperty::getName() const
{
    auto const* const row = requireInterface("getName");
    return row ? row->getName() : std::string();
}

bool PropertyGridProperty::getStringValue(std::string& value) const
{
    auto const* const row = requireInterface("getStringValue");
    return row && row->getStringValue(value);
}

bool PropertyGridProperty::getDoubleValue(double& value) const
{
    auto const* const row = requireInterface("getDoubleValue");
    return row && row->getDoubleValue(value);
}

void PropertyGridProperty::setValue(std::string const& text, bool notify)
{
    if (auto* const row = requireInterface("setValue"))
        row->setValue(text, notify);
}

bool PropertyGridProperty::hasQuantityPresentation() const
{
    auto const* const row = requireInterface("hasQuantityPresentation");
    return row && row->hasQuantityPresentation();
}

void PropertyGridProperty::setQuantityPresentation(
    std::unique_ptr<unit::QuantityPresentationBase> presentation)
{
    if (auto* const row = requireInterface("setQuantityPresentation"))
        row->setQuantityPresentation(std::move(presentation));
}

void* PropertyGridProperty::getUserData() const
{
    auto const* const row = requireInterface("getUserData");
    return row ? row->getUserData() : nullptr;
}

void PropertyGridProperty::setUserData(void* userData)
{
    if (auto* const row = requireInterface("setUserData"))
        row->setUserData(userData);
}

void PropertyGridProperty::addSubProperty(PropertyGridProperty& property)
{
    auto* const row = requireInterface("addSubProperty");
    if (!row)
        return;
    if (auto child = property.takeCreated())
        row->addSubProperty(std::move(child));
    else
        reportFrom("addSubProperty", "Property isn't new.");
}

std::size_t PropertyGridProperty::getSubPropertyCount() const
{
    auto const* const row = requireInterface("getSubPropertyCount");
    return row ? row->getSubPropertyCount() : 0;
}

void PropertyGridProperty::setDescription(std::string const& description)
{
    if (auto* const row = requireInterface("setDescription"))
        row->setDescription(description);
}

void PropertyGridProperty::addOption(std::string const& text, bool enabled)
{
    if (auto* const row = requireInterface("addOption"))
        row->addOption(text, enabled);
}

void PropertyGridProperty::setOptionsOnly(bool optionsOnly)
{
    if (auto* const row = requireInterface("setOptionsOnly"))
        row->setOptionsOnly(optionsOnly);
}

void PropertyGridProperty::allowEdit(bool allowed)
{
    if (auto* const row = requireInterface("allowEdit"))
        row->allowEdit(allowed);
}

void PropertyGridProperty::enable(bool enabled)
{
    if (auto* const row = requireInterface("enable"))
        row->enable(enabled);
}

bool PropertyGridProperty::isEnabled() const
{
    auto const* const row = requireInterface("isEnabled");
    return row && row->isEnabled();
}

void PropertyGridProperty::activateEmptyState()
{
    if (auto* const row = requireInterface("activateEmptyState"))
        row->setEmptyState(true);
}

void PropertyGridProperty::deactivateEmptyState()
{
    if (auto* const row = requireInterface("deactivateEmptyState"))
        row->setEmptyState(false);
}

void PropertyGridProperty::setHint(std::string const& hint)
{
    if (auto* const row = requireInterface("setHint"))
        row->setHint(hint);
}

void PropertyGridProperty::setBoldFontStyleForNameAndValue()
{
    if (auto* const row = requireInterface("setBoldFontStyleForNameAndValue"))
        row->setBoldFontStyleForNameAndValue();
}

void PropertyGridProperty::setBackgroundColour(attr::Colour const& colour)
{
    if (auto* const row = requireInterface("setBackgroundColour"))
        row->setBackgroundColour(colour);
}

void PropertyGridProperty::setAlignment(int alignment)
{
    if (auto* const row = requireInterface("setAlignment"))
        row->setAlignment(alignment);
}

void PropertyGridProperty::setHorizontalLine(int horizontalLine)
{
    if (auto* const row = requireInterface("setHorizontalLine"))
        row->setHorizontalLine(horizontalLine);
}

void PropertyGridProperty::setNameIndentationInCharacters(unsigned int characters)
{
    if (auto* const row = requireInterface("setNameIndentationInCharacters"))
        row->setNameIndentationInCharacters(characters);
}

void PropertyGridProperty::showButton(bool shown)
{
    if (auto* const row = requireInterface("showButton"))
        row->showButton(shown);
}

PropertyGridProperty::ButtonClickedHandlers&
PropertyGridProperty::onButtonClickedHandlers(std::shared_ptr<PropertyGridControl> const& /*control*/)
{
    if (auto* const row = requireInterface("onButtonClickedHandlers"))
        return row->getButtonClickedHandlers();
    if (!m_handlersOfNoRow)
        m_handlersOfNoRow = std::make_unique<ButtonClickedHandlers>();
    return *m_handlersOfNoRow;
}

std::shared_ptr<PropertyGridPropertyInterface> PropertyGridProperty::takeCreated()
{
    if (!m_created)
        return nullptr;
    m_existing = std::move(m_created);
    return m_existing;
}

PropertyGridPropertyInterface* PropertyGridProperty::requireInterface(std::string_view operation) const
{
    if (!m_created && !m_existing) {
        reportFrom(operation, "No active interface.");
        return nullptr;
    }
    return getActiveInterface();
}

} // namespace qev::ui
