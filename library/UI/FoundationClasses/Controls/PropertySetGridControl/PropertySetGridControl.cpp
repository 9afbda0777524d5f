#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl.h"

#include "Core/Assert/Assert.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertyEdit.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactories.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/Dialog.h"

#include <string_view>
#include <utility>

namespace qev::fc::ui {

using core::kernel::FcObject;
using qev::ui::Dialog;
using qev::ui::PropertyGridControl;
using qev::ui::PropertyGridCustomButtonProperty;
using qev::ui::PropertyGridEmptyLineProperty;
using qev::ui::PropertyGridProperty;
using qev::ui::Window;
using qev::ui::WindowClass;
using qev::ui::WindowPlacement;
using GridFormatter = PropertyGridControlPropertyFormatterInterface;

namespace {

/// The objects shown stand for one; a change is told of the first.
std::set<std::size_t> editedIndices() { return {0}; }

/// What stays free around a window without a placement of its own, in pixels.
constexpr int margin = 10;

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySetGridControl::" + std::string(operation),
                   "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControl");
}

void addEmptyLine(PropertyGridProperty& parent)
{
    PropertyGridEmptyLineProperty line;
    parent.addSubProperty(line);
}

void closeWindow(PropertyGridControl& window)
{
    if (!window.hasInterface())
        return;
    window.removeAllProperties();
    window.detach(true);
}

} // namespace

PropertySetGridControl::PropertySetGridControl(
    ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
    std::shared_ptr<Dialog> const& dialog,
    std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
    PropertySetControlFormatters<GridFormatter> const& formatters, std::vector<std::string> const& contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride)
    : PropertySetControl(schemaPset, data, dialog, filter, formatters.propertyFormatter, contexts,
                         qppOverride)
    , m_gridFormatter(formatters.controlFormatter)
{
}

PropertySetGridControl::~PropertySetGridControl()
{
    // The rows refer to this control and to its sets, and the dialog may keep the window.
    if (m_gridControl && m_gridControl->hasInterface())
        m_gridControl->removeAllProperties();
}

void PropertySetGridControl::init(int controlId, std::optional<WindowPlacement> placement,
                                  bool handlePropertyChanges)
{
    if (m_gridControl)
        reportFrom("init", "Assertion failed: Double init?");
    if (!getDialog())
        return;
    auto const previous = std::exchange(m_gridControl, createWindow(controlId, placement));
    if (previous)
        closeWindow(*previous);
    if (!m_gridControl)
        return;
    if (handlePropertyChanges) {
        m_gridControl->onPropertyChanged.iHandlerAdd(
            [self = weak_from_this()](auto& /*event*/, PropertyGridProperty& row) {
                if (auto const control = self.lock())
                    control->propertyChanged(row);
            });
    }
    refreshDisplay();
}

void PropertySetGridControl::initOnPropertySheetPageActivate(int controlId)
{
    if (!getDialog())
        return;
    getDialog()->onPropertySheetPageActivate.iHandlerAdd(
        [self = weak_from_this(), controlId](auto& /*event*/, std::size_t /*before*/, std::size_t /*now*/) {
            auto const control = self.lock();
            if (!control || control->m_initialised)
                return;
            control->init(controlId, std::nullopt, true);
            control->m_initialised = true;
        });
}

void PropertySetGridControl::reset() { PropertySetControl::reset(); }

void PropertySetGridControl::showUnusedProperties()
{
    m_showUnused = true;
    if (m_gridControl)
        refreshDisplay();
}

void PropertySetGridControl::hideUnusedProperties()
{
    m_showUnused = false;
    if (m_gridControl)
        refreshDisplay();
}

std::shared_ptr<PropertyGridControl> PropertySetGridControl::getPropertyGridControl()
{
    return m_gridControl;
}

std::shared_ptr<GridFormatter> PropertySetGridControl::getGridControlPropertyFormatter()
{
    return m_gridFormatter;
}

void PropertySetGridControl::onPropertyCreated(std::string const& setName, PropertyGridProperty& parent,
                                               std::string const& propertyName,
                                               PropertyGridProperty& property)
{
    if (m_gridFormatter && m_gridFormatter->wantCustomButtonProperties())
        setupOnCustomButtonClickedHandler(property);
    if (getFormatter()) {
        applyEnabledState(setName, propertyName, property);
        if (property.isEnabled()) {
            applyReadOnlyState(setName, propertyName, property);
            applyBackgroundColour(setName, propertyName, property);
        }
    }
    if (!m_gridFormatter)
        return;
    if (m_gridFormatter->wantButton(setName, propertyName)) {
        property.showButton(true);
        property.onButtonClickedHandlers(m_gridControl)
            .iHandlerAdd([self = weak_from_this()](auto& /*event*/, PropertyGridProperty& row) {
                if (auto const control = self.lock())
                    control->onButtonClicked(row);
            });
    }
    applyPropertyHorizontalLineState(setName, propertyName, property);
    if (property.isEnabled()) {
        applyPropertyAlignment(setName, propertyName, property);
        applyEmptyLineState(setName, propertyName, parent);
        applyPropertyNameIndentation(setName, propertyName, property);
        applyPropertyFontStyle(setName, propertyName, property);
    }
    notifyFormatterThatPropertyWasCreated(setName, propertyName, property);
}

void PropertySetGridControl::onPropertyCreatedAfter(std::string const& setName, PropertyGridProperty& parent,
                                                    std::string const& propertyName, bool wasEnabled)
{
    if (m_gridFormatter && wasEnabled)
        applyEmptyLineStateAfterPropertyWasAdded(setName, propertyName, parent);
}

void PropertySetGridControl::onCheckBoxPropertyClicked(std::string const& setName,
                                                       std::string const& propertyName, bool checked)
{
    fireEvents(checkBoxClickedHandlers, *this, setName, propertyName, checked);
    notifyPropertySetPropertyChanged(setName, propertyName, editedIndices(),
                                     PropertyChangedNotificationType::ValueChanged);
}

void PropertySetGridControl::applyEnabledState(std::string const& setName, std::string const& propertyName,
                                               Row& row)
{
    auto const* const formatter = requireFormatter("applyEnabledState");
    if (!formatter)
        return;
    bool const enabled = formatter->isEnabled(setName, propertyName);
    row.enable(enabled);
    if (enabled)
        row.deactivateEmptyState();
    else
        row.activateEmptyState();
}

void PropertySetGridControl::applyReadOnlyState(std::string const& setName, std::string const& propertyName,
                                                Row& row)
{
    if (auto const* const formatter = requireFormatter("applyReadOnlyState"))
        row.allowEdit(!formatter->isReadOnly(setName, propertyName));
}

void PropertySetGridControl::applyBackgroundColour(std::string const& setName,
                                                   std::string const& propertyName, Row& row)
{
    auto const* const formatter = requireFormatter("applyBackgroundColour");
    if (!formatter)
        return;
    if (auto const colour = formatter->getBackgroundColour(setName, propertyName))
        row.setBackgroundColour(*colour);
}

void PropertySetGridControl::applyPropertyHorizontalLineState(std::string const& setName,
                                                              std::string const& propertyName, Row& row)
{
    auto const formatter = requireGridFormatter("applyPropertyHorizontalLineState");
    if (!formatter)
        return;
    using State = GridFormatter::HorizontalLineState;
    switch (formatter->getHorizontalLineState(setName, propertyName)) {
    case State::None:
        return;
    case State::Line0:
        return row.setHorizontalLine(0);
    case State::Line1:
        return row.setHorizontalLine(1);
    case State::Line2:
        return row.setHorizontalLine(2);
    }
    reportFrom("applyPropertyHorizontalLineState", "Unknown horizontal line state.");
}

void PropertySetGridControl::applyPropertyAlignment(std::string const& setName,
                                                    std::string const& propertyName, Row& row)
{
    auto const formatter = requireGridFormatter("applyPropertyAlignment");
    if (!formatter)
        return;
    auto const alignment = formatter->getAlignment(setName, propertyName);
    switch (alignment) {
    case GridFormatter::Alignment::Alignment0:
    case GridFormatter::Alignment::Alignment1:
        return row.setAlignment(static_cast<int>(alignment));
    }
    reportFrom("applyPropertyAlignment", "Unknown alignment.");
}

void PropertySetGridControl::applyEmptyLineState(std::string const& setName, std::string const& propertyName,
                                                 Row& parent)
{
    auto const formatter = requireGridFormatter("applyEmptyLineState");
    if (!formatter)
        return;
    using State = GridFormatter::EmptyLineState;
    switch (formatter->getEmptyLineState(setName, propertyName)) {
    case State::Before:
    case State::BeforeAndAfter:
        return addEmptyLine(parent);
    case State::None:
    case State::After:
        return;
    }
    reportFrom("applyEmptyLineState", "Unknown empty line state.");
}

void PropertySetGridControl::applyEmptyLineStateAfterPropertyWasAdded(std::string const& setName,
                                                                      std::string const& propertyName,
                                                                      Row& parent)
{
    auto const formatter = requireGridFormatter("applyEmptyLineStateAfterPropertyWasAdded");
    if (!formatter)
        return;
    using State = GridFormatter::EmptyLineState;
    switch (formatter->getEmptyLineState(setName, propertyName)) {
    case State::After:
    case State::BeforeAndAfter:
        return addEmptyLine(parent);
    case State::None:
    case State::Before:
        return;
    }
    reportFrom("applyEmptyLineStateAfterPropertyWasAdded", "Unknown empty line state.");
}

void PropertySetGridControl::applyPropertyNameIndentation(std::string const& setName,
                                                          std::string const& propertyName, Row& row)
{
    if (auto const formatter = requireGridFormatter("applyPropertyNameIndentation"))
        row.setNameIndentationInCharacters(
            formatter->getPropertyNameIndentationInCharacters(setName, propertyName));
}

void PropertySetGridControl::applyPropertyFontStyle(std::string const& setName,
                                                    std::string const& propertyName, Row& row)
{
    auto const formatter = requireGridFormatter("applyPropertyFontStyle");
    if (formatter && formatter->wantBoldFontStyleForNameAndValue(setName, propertyName))
        row.setBoldFontStyleForNameAndValue();
}

void PropertySetGridControl::notifyFormatterThatPropertyWasCreated(std::string const& setName,
                                                                   std::string const& propertyName, Row& row)
{
    if (auto const formatter = requireGridFormatter("notifyFormatterThatPropertyWasCreated"))
        formatter->onPropertyCreated(setName, propertyName, row);
}

void PropertySetGridControl::refreshDisplay()
{
    if (!getData()) {
        reportFrom("refreshDisplay", "Data object must be set.");
        return;
    }
    if (!m_gridControl)
        return;
    auto const redrawGuard = m_gridControl->suspendRedraw();
    m_gridControl->removeAllProperties();
    for (auto const& object : getObjects()) {
        if (object)
            addAttributeGroups(*object);
    }
    addSetGroups();
    m_gridControl->adjustLayout();
}

std::shared_ptr<Window> PropertySetGridControl::getWindow() { return m_gridControl; }

std::shared_ptr<PropertyGridControl>
PropertySetGridControl::createWindow(int controlId, std::optional<WindowPlacement> const& placement)
{
    auto const& dialog = getDialog();
    auto const placeholder = controlId > 0 ? dialog->getChildWindow(controlId) : nullptr;
    if (!placeholder)
        return Window::create<PropertyGridControl>(dialog, 0, 0, derivedPlacement(), 0);
    auto const place = placement.value_or(placeholder->getPlacement());
    if (!placement)
        placeholder->detach(true);
    return Window::create<PropertyGridControl>(dialog, 0, 0, place, controlId);
}

WindowPlacement PropertySetGridControl::derivedPlacement() const
{
    using Factory = qev::ui::details::WindowInterfaceFactory;
    auto const defaultHeight =
        static_cast<int>(Factory::defaultWindowSize_(WindowClass::PropertyGridControl).second);
    auto const [width, height] = getDialog()->getClientAreaSize();
    return {margin, margin, static_cast<int>(width) - margin,
            static_cast<int>(height) - defaultHeight - 2 * margin};
}

bool PropertySetGridControl::isIncluded(std::string const& setName) const
{
    return !getFilter() || getFilter()->isSetIncluded(setName);
}

void PropertySetGridControl::addAttributeGroups(FcBase& object)
{
    auto const& factories = GridControlPropertyFactories::instance();
    if (isIncluded("Instance Attributes"))
        addGroup(
            factories.createProperty(*this, object, std::string(), *getData(), m_showUnused, getContexts()));
    auto const* const occurrence = isOfClass<FcObject>(object) ? static_cast<FcObject*>(&object) : nullptr;
    auto const type = occurrence ? occurrence->getTypeObject() : nullptr;
    if (type && isIncluded("Type Attributes"))
        addGroup(
            factories.createProperty(*this, *type, std::string(), *getData(), m_showUnused, getContexts()));
}

void PropertySetGridControl::addSetGroups()
{
    if (getDefinitions().empty())
        return;
    SetsToBeDisplayed sets;
    if (m_gridFormatter)
        sets.requestedOrder = m_gridFormatter->getPropertySetOrder();
    for (auto const& definition : getDefinitions()) {
        if (definition && isIncluded(definition->getName()))
            sets.add(*definition);
    }
    for (auto const& name : sets.getOrderedNames()) {
        auto const found = sets.definitionsByName.find(name);
        if (found != sets.definitionsByName.end())
            addGroup(GridControlPropertyFactories::instance().createProperty(*this, *found->second,
                                                                             *getData(), m_showUnused));
    }
}

void PropertySetGridControl::addGroup(std::unique_ptr<Row> group)
{
    if (!group)
        return;
    if (m_showUnused)
        m_gridControl->addProperty(std::move(group));
    else
        updateNonUsedProperty(std::move(group));
}

void PropertySetGridControl::updateNonUsedProperty(std::unique_ptr<Row> group)
{
    if (group->getActiveInterface() && group->getSubPropertyCount() > 0)
        m_gridControl->addProperty(std::move(group));
}

void PropertySetGridControl::propertyChanged(Row& row)
{
    auto* const property = row.getActiveInterface() ? propertyOfRow(row) : nullptr;
    if (!property || !getData())
        return;
    if (!property->isAllowedToEdit()) {
        row.setValue("");
        return;
    }
    auto const value = getValueFromGridProperty(row);
    // The names are taken before the edit: whoever hears of it may have the sets built anew.
    auto const setName = property->getPropertySetName();
    auto const name = property->getName();
    if (!writeEdit(*property, *getData(), value))
        row.setValue("");
    notifyPropertySetPropertyChanged(setName, name, editedIndices(),
                                     PropertyChangedNotificationType::ValueChanged);
}

PropertyOrQuantityValue PropertySetGridControl::getValueFromGridProperty(Row const& row) const
{
    if (row.hasQuantityPresentation()) {
        double number = 0;
        if (row.getDoubleValue(number))
            return PropertyOrQuantityValue::fromNumber(number);
        reportFrom("getValueFromGridProperty",
                   "Quantity formatted property should be compatible with double.");
        return PropertyOrQuantityValue::fromText("");
    }
    std::string text;
    return PropertyOrQuantityValue::fromText(row.getStringValue(text) ? text : std::string());
}

void PropertySetGridControl::setupOnCustomButtonClickedHandler(Row& row)
{
    auto* const buttonRow = dynamic_cast<PropertyGridCustomButtonProperty*>(&row);
    if (!buttonRow) {
        reportFrom("setupOnCustomButtonClickedHandler", "Should be a custom button property.");
        return;
    }
    buttonRow->getOnButtonClickedHandlers(m_gridControl)
        .iHandlerAdd([self = weak_from_this()](auto& /*event*/, PropertyGridCustomButtonProperty& clicked,
                                               std::string const& /*text*/) {
            if (auto const control = self.lock())
                control->onCustomButtonClicked(clicked);
        });
}

void PropertySetGridControl::onCustomButtonClicked(Row const& row)
{
    auto* const property = propertyOfRow(row);
    if (!property) {
        reportFrom("onCustomButtonClicked", "Interface not set.");
        return;
    }
    auto const setName = property->getPropertySetName();
    auto const name = property->getName();
    property->onPropertyCustomButtonClicked();
    fireEvents(propertyChangedHandlers, setName, name, editedIndices());
}

void PropertySetGridControl::onButtonClicked(Row const& row)
{
    auto const* const property = propertyOfRow(row);
    if (property)
        m_gridFormatter->onButtonClicked(property->getPropertySetName(), property->getName());
    else
        reportFrom("onButtonClicked", "Interface not set.");
}

PropertyFormatterInterface* PropertySetGridControl::requireFormatter(char const* operation) const
{
    if (!getFormatter())
        reportFrom(operation, "Should only be called when property formatter exists.");
    return getFormatter();
}

std::shared_ptr<GridFormatter> PropertySetGridControl::requireGridFormatter(char const* operation)
{
    auto formatter = getGridControlPropertyFormatter();
    if (!formatter)
        reportFrom(operation, "Should only be called when grid control property formatter exists.");
    return formatter;
}

} // namespace qev::fc::ui
