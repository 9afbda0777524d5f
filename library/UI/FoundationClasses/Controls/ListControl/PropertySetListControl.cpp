#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"

#include "Core/Assert/Assert.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/ListControl/ListControlEdit.h"
#include "UI/FoundationClasses/Controls/PropertyEdit.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "Ui/Window/Dialog.h"
#include "Ui/Window/ProgressBarInterface.h"

#include <algorithm>
#include <string_view>
#include <typeinfo>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using qev::ui::CheckState;
using qev::ui::Dialog;
using qev::ui::PopupMenu;
using qev::ui::ProgressBarInterface;
using qev::ui::Window;
using ListFormatter = ListControlPropertyFormatterInterface;

namespace {

/// The style arguments that the list is made with.
constexpr unsigned int listStyle = qev::ui::ListControl::ReportStyle;
constexpr unsigned int listExtendedStyle = 5;

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySetListControl::" + std::string(operation),
                   "UI/FoundationClasses/Controls/ListControl/PropertySetListControl");
}

std::size_t rowOf(qev::ui::ListControl::ItemInfo const& item) { return item.item.value_or(0); }

std::size_t columnOf(qev::ui::ListControl::ItemInfo const& item) { return item.column.value_or(0); }

/// A truth value alone, without a value that it switches.
bool isPlainBoolean(PropertyInterface const& property)
{
    return typeid(property) == typeid(FcPropertyBooleanType);
}

std::string truthText(std::string const& value)
{
    if (value.empty())
        return {};
    return value == "1" ? "TRUE" : "FALSE";
}

bool isSwitchedOff(PropertyInterface const& property)
{
    auto const* const toggle = dynamic_cast<FcPropertySingleValueWithBooleanToggle const*>(&property);
    return toggle && toggle->getBooleanValue() != "1";
}

} // namespace

PropertySetListControl::PropertySetListControl(
    ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
    std::shared_ptr<Dialog> const& dialog, int controlId,
    std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
    PropertySetControlFormatters<ListFormatter> const& formatters, std::vector<std::string> const& contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride)
    : PropertySetControl(schemaPset, data, dialog, filter, formatters.propertyFormatter, contexts,
                         std::move(qppOverride))
    , m_listFormatter(formatters.controlFormatter)
    , m_columns(formatters.controlFormatter)
{
    createListControl(controlId);
    if (!m_listControl)
        return;
    if (m_listFormatter)
        m_listFormatter->setListControl(m_listControl);
    setupListControlEventHandlers();
    setupEditingEventHandlers();
}

PropertySetListControl::~PropertySetListControl() = default;

void PropertySetListControl::reset()
{
    for (auto const& column : m_columns.getColumns()) {
        if (!column->isCustom())
            column->resetProperty();
    }
    m_objectsBeingEdited.clear();
    PropertySetControl::reset();
}

void PropertySetListControl::updateObjects(
    std::map<std::size_t, std::shared_ptr<FcObjectDefinition>> const& rows)
{
    for (auto const& [row, object] : rows) {
        if (row >= getObjects().size()) {
            reportFrom("updateObjects", "Index out of range.");
            continue;
        }
        replaceObject(row, object);
        if (m_listControl)
            m_listControl->redrawItem(row);
    }
}

void PropertySetListControl::setReadOnlyState(bool readOnly)
{
    if (m_listControl)
        m_listControl->enable(!readOnly);
}

attr::Colour const& PropertySetListControl::readOnlyColour()
{
    static constexpr attr::Colour colour{0xFF, 0xE6, 0xE6, 0xE6};
    return colour;
}

std::vector<std::pair<std::shared_ptr<FcBase>, std::size_t>>
PropertySetListControl::getSelectedObjectsAndIndices() const
{
    std::vector<std::pair<std::shared_ptr<FcBase>, std::size_t>> selected;
    if (!m_listControl) {
        reportFrom("getSelectedObjectsAndIndices", "Assertion failed: Expect to have list control");
        return selected;
    }
    for (auto const row : m_listControl->getSelectedItems()) {
        if (row < getObjects().size())
            selected.emplace_back(getObjects()[row], row);
        else
            reportFrom("getSelectedObjectsAndIndices", "Index out of range.");
    }
    return selected;
}

void PropertySetListControl::notifyPropertySetPropertyChanged(std::string const& setName,
                                                              std::string const& propertyName,
                                                              std::set<std::size_t> const& objectIndices,
                                                              PropertyChangedNotificationType type)
{
    // The formatter is left at the last of these objects, whatever row it was asked about before.
    if (type == PropertyChangedNotificationType::ValueChanged && !objectIndices.empty()) {
        auto const last = *objectIndices.rbegin();
        m_formatterObjectIndex = last < getObjects().size() ? std::optional(last) : std::nullopt;
    }
    PropertySetControl::notifyPropertySetPropertyChanged(setName, propertyName, objectIndices, type);
}

void PropertySetListControl::initSets()
{
    m_objectsBeingEdited.clear();
    if (!getObjects().empty())
        m_objectsBeingEdited.push_back(getObjects().front());
    PropertySetControl::initSets();
}

void PropertySetListControl::refreshDisplay()
{
    m_formatterObjectIndex.reset();
    // The same row may be that of another object now, and columns of the host's own would show the old one.
    m_listFormatterObjectIndex.reset();
    rebuildColumns();
    if (!m_listControl)
        return;
    auto shownColumns = describeColumns();
    if (!m_shownColumns.empty() && m_shownColumns != shownColumns)
        m_listControl->setItemAndColumnCounts(0, 0);
    m_shownColumns = std::move(shownColumns);
    setDefaultHiddenColumns();
    auto const redrawGuard = m_listControl->suspendRedraw();
    initialiseColumnCheckAndComboBoxes();
    m_listControl->setItemAndColumnCounts(getObjects().size(), m_columns.getColumnCount());
    if (m_listFormatter)
        m_listFormatter->onItemAndColumnCountUpdated();
}

std::shared_ptr<Window> PropertySetListControl::getWindow() { return m_listControl; }

std::vector<std::shared_ptr<FcBase>> const& PropertySetListControl::getObjectsBeingEdited()
{
    return m_objectsBeingEdited;
}

void PropertySetListControl::createListControl(int controlId)
{
    auto const placeholder = getDialog() ? getDialog()->getChildWindow(controlId) : nullptr;
    if (!placeholder)
        return;
    auto const placement = placeholder->getPlacement();
    placeholder->detach(true);
    m_listControl =
        Window::create<ListControl>(getDialog(), listStyle, listExtendedStyle, placement, controlId);
}

template <class Event, class Operation>
void PropertySetListControl::attach(Event& event, Operation operation)
{
    m_attachments.emplace_back(event, [this, operation](auto&&... arguments) {
        return (this->*operation)(std::forward<decltype(arguments)>(arguments)...);
    });
}

void PropertySetListControl::setupListControlEventHandlers()
{
    auto& list = *m_listControl;
    using Self = PropertySetListControl;
    m_attachments.emplace_back(list.onGetColumnHeaderText,
                               [this](std::size_t column) { return m_columns.getColumnTitle(column); });
    attach(list.onGetItemText, &Self::onGetItemText);
    m_attachments.emplace_back(list.onItemActivated,
                               [this](ItemInfo const& item) { onItemEvent(itemActivatedHandlers, item); });
    m_attachments.emplace_back(list.onItemSecondaryEvent,
                               [this](ItemInfo const& item) { onItemEvent(itemSecondaryHandlers, item); });
    attach(list.onGetItemBackgroundColour, &Self::onGetItemBackgroundColour);
    attach(list.onCheckBoxClicked, &Self::onCheckBoxClicked);
    attach(list.onGetCheckState, &Self::onGetCheckBoxState);
    attach(list.onLabelEditBegin, &Self::onLabelEditBegin);
    attach(list.onLabelEditEnd, &Self::onLabelEditEnd);
    m_attachments.emplace_back(list.onQueryColumn, [](std::size_t /*column*/) { return true; });
    attach(list.onDoesItemContainLocalValue, &Self::onDoesItemContainLocalValue);
    attach(list.onResetItemsToGlobalValues, &Self::onResetItemsToGlobalValues);
    attach(list.onContextMenu, &Self::onContextMenu);
    attach(list.onContextMenuCommand, &Self::onContextMenuCommand);
}

void PropertySetListControl::setupEditingEventHandlers()
{
    auto& list = *m_listControl;
    using Self = PropertySetListControl;
    attach(list.onGetItemEditText, &Self::onGetItemEditText);
    attach(list.onGetItemNumber, &Self::onGetItemNumber);
    attach(list.onIsItemReadOnly, &Self::onIsItemReadOnly);
    attach(list.onEditsBegin, &Self::onEditsBegin);
    attach(list.onWouldTakeLabelEdit, &Self::onWouldTakeLabelEdit);
}

void PropertySetListControl::setObjectFromIndexOnFormatter(std::size_t row)
{
    if (!getFormatter() || m_formatterObjectIndex == row)
        return;
    m_formatterObjectIndex = row;
    if (row < getObjects().size())
        getFormatter()->setObject(getData(), getObjects()[row]);
    else
        reportFrom("setObjectFromIndexOnFormatter", "Index out of range.");
}

void PropertySetListControl::setObjectFromIndexOnListControlFormatter(std::size_t row)
{
    if (!m_listFormatter || m_listFormatterObjectIndex == row)
        return;
    m_listFormatterObjectIndex = row;
    if (row < getObjects().size())
        m_listFormatter->setObject(getData(), getObjects()[row]);
    else
        reportFrom("setObjectFromIndexOnListControlFormatter", "Index out of range.");
}

bool PropertySetListControl::setObjectBeingEdited(std::size_t row)
{
    m_objectsBeingEdited.clear();
    if (row >= getObjects().size()) {
        reportFrom("setObjectBeingEdited", "Index out of range.");
        return false;
    }
    m_objectsBeingEdited.push_back(getObjects()[row]);
    return true;
}

void PropertySetListControl::rebuildColumns()
{
    m_columns.clear();
    auto const* const filter = getFilter();
    for (auto const& definition : getDefinitions()) {
        if (!definition || (filter && !filter->isSetIncluded(definition->getName())))
            continue;
        for (auto const& property : definition->getProperties()) {
            auto const title = property->getLocalizedName();
            auto const name = property->getName();
            if (!filter || filter->isPropertyIncluded(definition->getName(), name))
                m_columns.addPropertyColumn(title, definition->getName(), name, property.get());
        }
    }
    addCustomColumns();
}

void PropertySetListControl::addCustomColumns()
{
    if (!m_listFormatter)
        return;
    auto const columns = m_listFormatter->getCustomColumns();
    for (auto column = columns.rbegin(); column != columns.rend(); ++column)
        m_columns.addCustomColumn(column->id, column->title, column->insertBefore);
}

void PropertySetListControl::setDefaultHiddenColumns()
{
    if (!m_listFormatter)
        return;
    std::set<std::size_t> hidden;
    for (std::size_t index = 0; index < m_columns.getColumnCount(); ++index) {
        auto const& names = m_columns.getColumnNames(index);
        if (m_listFormatter->isPropertyToBeHiddenByDefault(names.setName, names.propertyName))
            hidden.insert(index);
    }
    if (!hidden.empty())
        m_listControl->getHeader().setDefaultHiddenColumns(hidden);
}

std::vector<PropertySetListControl::ShownColumn> PropertySetListControl::describeColumns() const
{
    std::vector<ShownColumn> shown;
    for (auto const& column : m_columns.getColumns()) {
        ShownColumn description{column->getNames(), std::nullopt, false};
        auto const* const property = column->isCustom() ? nullptr : column->getProperty();
        if (dynamic_cast<FcPropertySingleValueWithBooleanToggle const*>(property))
            description.checkBoxMode = ListControl::BoxWithValue;
        else if (dynamic_cast<FcPropertyBooleanType const*>(property))
            description.checkBoxMode = ListControl::BoxAlone;
        else
            description.isComboBox = dynamic_cast<FcPropertyEnumeratedValue const*>(property) != nullptr;
        shown.push_back(std::move(description));
    }
    return shown;
}

void PropertySetListControl::initialiseColumnCheckAndComboBoxes()
{
    for (std::size_t index = 0; index < m_columns.getColumnCount(); ++index) {
        auto const& column = *m_columns.getColumns()[index];
        if (column.isCustom())
            continue;
        if (!column.getProperty()) {
            reportFrom("initialiseColumnCheckAndComboBoxes::<lambda_1>::operator ()", "Property is missing.");
            continue;
        }
        auto const& shown = m_shownColumns[index];
        if (shown.checkBoxMode)
            m_listControl->enableColumnCheckBoxes(index, *shown.checkBoxMode, nullptr, nullptr);
        else if (shown.isComboBox)
            m_listControl->activateComboBoxEditingForColumn(index);
    }
}

std::string PropertySetListControl::onGetItemText(ItemInfo const& item)
{
    if (!turnToCell(item))
        return {};
    auto const column = columnOf(item);
    if (m_columns.isCustomColumn(column)) {
        setObjectFromIndexOnListControlFormatter(rowOf(item));
        return m_columns.getCustomColumnItemString(column);
    }
    auto const* const property = getSwitchedOnProperty(item);
    return property && !isPlainBoolean(*property) ? property->getValue() : std::string();
}

bool PropertySetListControl::turnToCell(ItemInfo const& item)
{
    if (ProgressBarInterface::isRunning())
        return false;
    setObjectFromIndexOnFormatter(rowOf(item));
    return !isStringValueToBeBlankForGivenItem(item);
}

PropertyInterface const* PropertySetListControl::getSwitchedOnProperty(ItemInfo const& item)
{
    auto const* const property = m_columns.getProperty(columnOf(item));
    if (!property || !setObjectBeingEdited(rowOf(item)) || isSwitchedOff(*property))
        return nullptr;
    return property;
}

std::string PropertySetListControl::onGetItemEditText(ItemInfo const& item)
{
    auto const* const single = getShownSingleValue(item);
    if (!single)
        return onGetItemText(item);
    if (isPlainBoolean(*single))
        return truthText(single->getValue());
    auto const& value = single->getFcValue();
    auto const number = value.valueAsDoubleGet();
    if (!number)
        return value.isEmpty() ? std::string() : single->getValue();
    auto const presentation = single->quantityPresentation();
    if (!presentation)
        return str::shortestText(*number);
    presentation->setValue(*number);
    return presentation->fullDigits();
}

std::optional<double> PropertySetListControl::onGetItemNumber(ItemInfo const& item)
{
    if (auto const* const single = getShownSingleValue(item))
        return single->getFcValue().valueAsDoubleGet();
    return str::parseDouble(onGetItemText(item));
}

FcPropertySingleValue const* PropertySetListControl::getShownSingleValue(ItemInfo const& item)
{
    if (!turnToCell(item) || m_columns.isCustomColumn(columnOf(item)))
        return nullptr;
    return dynamic_cast<FcPropertySingleValue const*>(getSwitchedOnProperty(item));
}

bool PropertySetListControl::isStringValueToBeBlankForGivenItem(ItemInfo const& item) const
{
    if (rowOf(item) >= getObjects().size()) {
        reportFrom("isStringValueToBeBlankForGivenItem", "Invalid item index.");
        return true;
    }
    return getFormatter() && !isEnabled(m_columns.getColumnNames(columnOf(item)));
}

std::optional<attr::Colour> PropertySetListControl::onGetItemBackgroundColour(ItemInfo const& item)
{
    if (ProgressBarInterface::isRunning())
        return std::nullopt;
    setObjectFromIndexOnFormatter(rowOf(item));
    if (m_columns.isCustomColumn(columnOf(item)))
        return readOnlyColour();
    auto const& names = m_columns.getColumnNames(columnOf(item));
    if (names.setName.empty() || names.propertyName.empty() || isStringValueToBeBlankForGivenItem(item))
        return std::nullopt;
    if (isReadOnly(names))
        return readOnlyColour();
    return getFormatter() ? getFormatter()->getBackgroundColour(names.setName, names.propertyName)
                          : std::nullopt;
}

bool PropertySetListControl::onIsItemReadOnly(ItemInfo const& item)
{
    if (m_columns.isCustomColumn(columnOf(item)))
        return true;
    setObjectFromIndexOnFormatter(rowOf(item));
    return isReadOnly(m_columns.getColumnNames(columnOf(item)));
}

std::optional<CheckState> PropertySetListControl::onGetCheckBoxState(ItemInfo const& item)
{
    auto const column = columnOf(item);
    if (!isEnabled(m_columns.getColumnNames(column)))
        return std::nullopt;
    auto const* const property = requireBooleanProperty(column, "onGetCheckBoxState");
    if (!property || !setObjectBeingEdited(rowOf(item)))
        return std::nullopt;
    return property->getBooleanValue() == "1" ? CheckState::Checked : CheckState::Unchecked;
}

void PropertySetListControl::onCheckBoxClicked(ItemInfo const& item, CheckState state)
{
    auto* const property = requireBooleanProperty(columnOf(item), "onCheckBoxClicked");
    auto const row = rowOf(item);
    if (!property || !getData() || !setObjectBeingEdited(row))
        return;
    auto const self = weak_from_this().lock();
    // The names are taken before the edit: whoever hears of it may have the sets built anew.
    auto const setName = property->getPropertySetName();
    auto const name = property->getBooleanName();
    writeCheckBoxEdit(*property, *getData(),
                      PropertyOrQuantityValue::fromText(state == CheckState::Checked ? "1" : "0"));
    notifyPropertySetPropertyChanged(setName, name, {row}, PropertyChangedNotificationType::ValueChanged);
    m_listFormatterObjectIndex.reset();
    m_listControl->redrawItem(row);
}

qev::ui::ListControl::LabelEditBeginResultParams
PropertySetListControl::onLabelEditBegin(ListControl::LabelEditBeginParams const& params)
{
    if (params.items.empty())
        return {};
    auto const column = columnOf(params.items.front());
    if (m_columns.isCustomColumn(column))
        return {};
    auto const* const property = m_columns.getProperty(column);
    if (!property) {
        reportFrom("onLabelEditBegin", "Column index out of sync.");
        return {};
    }
    auto const* const enumerated = dynamic_cast<FcPropertyEnumeratedValue const*>(property);
    if (isPlainBoolean(*property) || (!enumerated && !dynamic_cast<FcPropertySingleValue const*>(property)))
        return {};
    auto const& names = m_columns.getColumnNames(column);
    bool const areEditable = std::all_of(params.items.begin(), params.items.end(), [&](ItemInfo const& item) {
        return isRowEditable(rowOf(item), names, *property);
    });
    if (!areEditable)
        return {};
    if (enumerated)
        return {ListControl::DropList, enumerated->getLocalizedEnumeratedValues()};
    return {ListControl::EditBox, {}};
}

bool PropertySetListControl::isRowEditable(std::size_t row, ColumnPropertyNames const& names,
                                           PropertyInterface const& property)
{
    if (!setObjectBeingEdited(row))
        return false;
    if (getFormatter()) {
        getFormatter()->setObject(getData(), getObjects()[row]);
        // Whoever paints the next cell has not asked for this row.
        m_formatterObjectIndex.reset();
    }
    return isEnabled(names) && !isReadOnly(names) && !isSwitchedOff(property);
}

void PropertySetListControl::onLabelEditEnd(ListControl::LabelEditEndParams const& params)
{
    if (!params.accepted)
        return;
    auto const column = params.getColumnIndex();
    auto* const property = m_columns.getProperty(column);
    if (!property) {
        reportFrom("onLabelEditEnd", "Unable to fetch property from column.");
        return;
    }
    m_formatterObjectIndex.reset();
    bool const isSupported = dynamic_cast<FcPropertySingleValue const*>(property) ||
                             dynamic_cast<FcPropertyEnumeratedValue const*>(property);
    if (!isSupported) {
        reportFrom("onLabelEditEnd", "Unsupported property type for doring label edit.");
        return;
    }
    auto const self = weak_from_this().lock();
    // The names are taken before the edit: whoever hears of it may have the columns built anew.
    auto const names = m_columns.getColumnNames(column);
    auto const rows = writeLabelEdit(params, *property);
    if (rows.empty())
        return;
    notifyPropertySetPropertyChanged(names.setName, names.propertyName, rows,
                                     PropertyChangedNotificationType::ValueChanged);
    // What the formatter knows of these rows may hang on the values they had.
    m_formatterObjectIndex.reset();
}

std::set<std::size_t> PropertySetListControl::writeLabelEdit(ListControl::LabelEditEndParams const& params,
                                                             PropertyInterface& property)
{
    std::set<std::size_t> rows;
    if (!getData())
        return rows;
    ChangeLog::Step const step(getData()->changes(), property.getLocalizedName());
    for (auto const& item : params.items) {
        auto const row = rowOf(item);
        if (!setObjectBeingEdited(row))
            continue;
        auto const value = editedValue(params, property);
        if (!value || !writeEdit(property, *getData(), *value))
            params.refuse(item);
        rows.insert(row);
    }
    return rows;
}

bool PropertySetListControl::onWouldTakeLabelEdit(ListControl::LabelEditEndParams const& params)
{
    auto const* const property = m_columns.getProperty(params.getColumnIndex());
    return property && std::all_of(params.items.begin(), params.items.end(), [&](ItemInfo const& item) {
               return setObjectBeingEdited(rowOf(item)) && wouldTakeEdit(params, *property);
           });
}

std::shared_ptr<void> PropertySetListControl::onEditsBegin() const
{
    if (!getData())
        return nullptr;
    return std::make_shared<ChangeLog::Step>(
        getData()->changes(),
        localizedText({"FoundationClassesUi"}, "EditsInList", [] { return "Edit cells"; }));
}

bool PropertySetListControl::onDoesItemContainLocalValue(ItemInfo const& item)
{
    if (!m_listFormatter)
        return false;
    setObjectFromIndexOnListControlFormatter(rowOf(item));
    auto const& names = m_columns.getColumnNames(columnOf(item));
    return m_listFormatter->doesItemContainLocalValue(names.setName, names.propertyName);
}

void PropertySetListControl::onResetItemsToGlobalValues(std::vector<std::size_t> const& rows,
                                                        std::size_t column)
{
    if (!m_listFormatter || rows.empty())
        return;
    auto const self = weak_from_this().lock();
    auto const names = m_columns.getColumnNames(column);
    resetToGlobalValues(rows, names);
    notifyPropertySetPropertyChanged(names.setName, names.propertyName, {rows.begin(), rows.end()},
                                     PropertyChangedNotificationType::ResetToGlobalValue);
    m_listFormatterObjectIndex.reset();
    for (auto const row : rows)
        m_listControl->redrawItem(row);
}

void PropertySetListControl::resetToGlobalValues(std::vector<std::size_t> const& rows,
                                                 ColumnPropertyNames const& names)
{
    auto const edits = onEditsBegin();
    for (auto const row : rows) {
        setObjectFromIndexOnListControlFormatter(row);
        m_listFormatter->onResetItemToGlobalValue(names.setName, names.propertyName);
    }
}

void PropertySetListControl::onItemEvent(ItemHandlers const& handlers, ItemInfo const& item) const
{
    auto const row = rowOf(item);
    if (row >= getObjects().size())
        return;
    if (auto const object = getObjects()[row])
        fireEvents(handlers, *object);
}

void PropertySetListControl::onContextMenu(ItemInfo const& item, PopupMenu& menu) const
{
    auto const row = rowOf(item);
    if (itemContextMenuHandlers.handlerCount() == 0 || row >= getObjects().size())
        return;
    auto const names = m_columns.getColumnNames(columnOf(item));
    if (auto const object = getObjects()[row])
        fireEvents(itemContextMenuHandlers, *object, names, menu);
}

void PropertySetListControl::onContextMenuCommand(ItemInfo const& item, int command) const
{
    auto const row = rowOf(item);
    if (itemContextMenuCommandHandlers.handlerCount() == 0 || row >= getObjects().size())
        return;
    auto const names = m_columns.getColumnNames(columnOf(item));
    if (auto const object = getObjects()[row])
        fireEvents(itemContextMenuCommandHandlers, *object, names, command);
}

FcPropertyBooleanType* PropertySetListControl::requireBooleanProperty(std::size_t column,
                                                                      std::string_view operation) const
{
    auto* const property = dynamic_cast<FcPropertyBooleanType*>(m_columns.getProperty(column));
    if (!property)
        reportFrom(operation, "Non-boolean properties can't be associated with a check box.");
    return property;
}

bool PropertySetListControl::isEnabled(ColumnPropertyNames const& names) const
{
    return !getFormatter() || getFormatter()->isEnabled(names.setName, names.propertyName);
}

bool PropertySetListControl::isReadOnly(ColumnPropertyNames const& names) const
{
    return getFormatter() && getFormatter()->isReadOnly(names.setName, names.propertyName);
}

} // namespace qev::fc::ui
