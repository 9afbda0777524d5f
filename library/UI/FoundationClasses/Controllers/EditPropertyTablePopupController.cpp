#include "UI/FoundationClasses/Controllers/EditPropertyTablePopupController.h"

#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "UI/FoundationClasses/Controllers/ValueCell.h"

#include <algorithm>
#include <cstddef>

namespace qev::fc::ui {

using qev::ui::ListControl;
using qev::ui::MenuEntry;
using resource::measure::FcValue;
using resource::property::FcPropertyTableValue;

namespace {

constexpr char name[] = "EditPropertyTablePopupController";

EditPropertyTablePopupController::Rows rowsOf(FcPropertyTableValue const& property)
{
    auto const& defining = property.DefiningValues.get();
    auto const& defined = property.DefinedValues.get();
    EditPropertyTablePopupController::Rows rows;
    if (!defining || !defined)
        return rows;
    for (std::size_t row = 0; row < std::min(defining->size(), defined->size()); ++row)
        rows.emplace_back((*defining)[row], (*defined)[row]);
    return rows;
}

} // namespace

EditPropertyTablePopupController::EditPropertyTablePopupController(
    std::shared_ptr<Data> data, std::vector<std::shared_ptr<FcPropertyTableValue>> objects,
    std::string propertyName)
    : m_data(std::move(data))
    , m_objects(std::move(objects))
    , m_propertyName(std::move(propertyName))
{
    if (!holdsOneObject(m_objects, name))
        return;
    auto const& property = *m_objects.front();
    m_rows = rowsOf(property);
    m_definingUnit = &property.DefiningUnit.get();
    m_definedUnit = &property.DefinedUnit.get();
}

EditPropertyTablePopupController::~EditPropertyTablePopupController() = default;

void EditPropertyTablePopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    list.enableLabelEdit();
    m_popup.handle(list.onGetColumnHeaderText, handleGetColumnHeaderString);
    m_popup.handle(list.onGetItemText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemString(item); });
    m_popup.handle(list.onLabelEditBegin,
                   [](ListControl::LabelEditBeginParams const&) { return handleLabelEditBegin(); });
    m_popup.handle(list.onLabelEditEnd,
                   [this](ListControl::LabelEditEndParams const& params) { handleLabelEditEnd(params); });
    m_popup.handle(list.onContextMenu, [this](ListControl::ItemInfo const& item, qev::ui::PopupMenu& menu) {
        handleContextMenu(item, menu);
    });
    m_popup.handle(list.onContextMenuCommand, [this](ListControl::ItemInfo const& item, int command) {
        handleContextMenuCommand(item, command);
    });
    m_popup.handle(m_popup.control().closed, [this] { handleClosed(); });
    m_popup.handle(list.onGetItemEditText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemEditString(item); });
    updateCounts();
    if (m_rows.empty())
        list.startLabelEdit(0);
}

void EditPropertyTablePopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

FcPropertyTableValue const* EditPropertyTablePopupController::getProperty() const
{
    return m_objects.empty() ? nullptr : m_objects.front().get();
}

std::unique_ptr<unit::QuantityPresentationBase>
EditPropertyTablePopupController::presentationFor(FcValue const& value) const
{
    return presentationOfValue(value, getProperty(), m_propertyName);
}

FcValue const* EditPropertyTablePopupController::findValue(ListControl::ItemInfo const& item) const
{
    if (rowOf(item) >= m_rows.size())
        return nullptr;
    auto const& row = m_rows[rowOf(item)];
    return columnOf(item) == 0 ? &row.first : &row.second;
}

std::string EditPropertyTablePopupController::handleGetColumnHeaderString(std::size_t column)
{
    switch (column) {
    case 0:
        return qev::localize("TableValue_DefiningValue", "FoundationClassesUi");
    case 1:
        return qev::localize("TableValue_DefinedValue", "FoundationClassesUi");
    default:
        reportOfPopup(name, "handleGetColumnHeaderString", "Unknown column");
        return {};
    }
}

std::string EditPropertyTablePopupController::handleGetItemString(ListControl::ItemInfo const& item) const
{
    auto const* const value = findValue(item);
    return value ? cellText(*value, presentationFor(*value).get()) : std::string();
}

std::string EditPropertyTablePopupController::handleGetItemEditString(ListControl::ItemInfo const& item) const
{
    auto const* const value = findValue(item);
    return value ? cellEditText(*value, presentationFor(*value).get()) : std::string();
}

ListControl::LabelEditBeginResultParams EditPropertyTablePopupController::handleLabelEditBegin()
{
    return {ListControl::EditBox, {}};
}

void EditPropertyTablePopupController::handleLabelEditEnd(ListControl::LabelEditEndParams const& params)
{
    if (!params.accepted)
        return;
    auto const item = params.getEditedItem();
    if (rowOf(item) == m_rows.size())
        appendRow();
    if (rowOf(item) >= m_rows.size())
        return;
    auto& row = m_rows[rowOf(item)];
    auto& value = columnOf(item) == 0 ? row.first : row.second;
    if (!setValueFromCell(value, presentationFor(value).get(), params.getEditBoxText()))
        params.refuse(item);
}

void EditPropertyTablePopupController::handleContextMenu(ListControl::ItemInfo const& item,
                                                         qev::ui::PopupMenu& menu) const
{
    if (rowOf(item) >= m_rows.size())
        return;
    menu.iMenuElemAdd(
        std::make_unique<MenuEntry>(qev::localize("TableValue_DeleteRow", "FoundationClassesUi")));
    menu.iMenuElemAdd(
        std::make_unique<MenuEntry>(qev::localize("TableValue_InsertRowAbove", "FoundationClassesUi")));
}

void EditPropertyTablePopupController::handleContextMenuCommand(ListControl::ItemInfo const& item,
                                                                int command)
{
    if (rowOf(item) >= m_rows.size())
        return;
    if (command == DeleteRow)
        deleteRow(rowOf(item));
    else if (command == InsertRowAbove)
        insertRowAbove(rowOf(item));
}

void EditPropertyTablePopupController::handleClosed() const
{
    if (!m_callback)
        return;
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    auto const rows = m_rows;
    callback(rows);
}

void EditPropertyTablePopupController::appendRow()
{
    auto const* const property = getProperty();
    auto row = property ? ifc::createTableValue(*property) : std::nullopt;
    if (!row)
        return;
    m_rows.push_back(std::move(*row));
    updateCounts();
}

void EditPropertyTablePopupController::deleteRow(std::size_t row)
{
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row));
    updateCounts();
}

void EditPropertyTablePopupController::insertRowAbove(std::size_t row)
{
    auto const* const property = getProperty();
    auto inserted = property ? ifc::createTableValue(*property) : std::nullopt;
    if (!inserted)
        return;
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(row), std::move(*inserted));
    updateCounts();
    m_popup.list().startLabelEdit(row);
}

void EditPropertyTablePopupController::updateCounts()
{
    m_popup.list().setItemAndColumnCounts(m_rows.size(), 2);
}

} // namespace qev::fc::ui
