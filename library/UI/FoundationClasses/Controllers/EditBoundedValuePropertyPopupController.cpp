#include "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Model/PropertyDefinitions.h"
#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/Controllers/ValueCell.h"

#include <algorithm>

namespace qev::fc::ui {

using qev::ui::CheckState;
using qev::ui::ListControl;
using resource::measure::FcValue;
using resource::property::FcPropertyBoundedValue;

namespace {

constexpr char name[] = "EditBoundedValuePropertyPopupController";

} // namespace

EditBoundedValuePropertyPopupController::EditBoundedValuePropertyPopupController(
    std::vector<std::shared_ptr<FcPropertyBoundedValue>> objects, std::string propertyName)
    : m_objects(std::move(objects))
    , m_propertyName(std::move(propertyName))
{
    if (!holdsOneObject(m_objects, name))
        return;
    auto const& property = *m_objects.front();
    // The dictionaries have these texts under the attribute, and the entity behind it.
    for (auto const* const attribute : {"LowerBoundValue", "UpperBoundValue", "SetPointValue"})
        m_labels.push_back(fc::localize(attribute, "IfcPropertyBoundedValue"));
    m_values = {property.LowerBoundValue.get(), property.UpperBoundValue.get(), property.SetPointValue.get()};
}

EditBoundedValuePropertyPopupController::~EditBoundedValuePropertyPopupController() = default;

void EditBoundedValuePropertyPopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    m_popup.handle(list.onGetItemText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemString(item); });
    m_popup.handle(list.onCheckBoxClicked,
                   [this](ListControl::ItemInfo const& item, CheckState) { handleCheckBoxClicked(item); });
    m_popup.handle(list.onGetCheckState,
                   [this](ListControl::ItemInfo const& item) { return handleGetCheckState(item); });
    m_popup.handle(list.onLabelEditBegin, [this](ListControl::LabelEditBeginParams const& params) {
        return handleLabelEditBegin(params);
    });
    m_popup.handle(list.onLabelEditEnd,
                   [this](ListControl::LabelEditEndParams const& params) { handleLabelEditEnd(params); });
    m_popup.handle(m_popup.control().closed, [this] { handleClosed(); });
    m_popup.handle(list.onGetItemEditText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemEditString(item); });
    list.setItemAndColumnCounts(m_labels.size(), 2);
    list.enableColumnCheckBoxes(0, ListControl::BoxWithValue, nullptr, nullptr);
}

void EditBoundedValuePropertyPopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

std::unique_ptr<unit::QuantityPresentationBase>
EditBoundedValuePropertyPopupController::presentationFor(FcValue const& value) const
{
    return presentationOfValue(value, m_objects.empty() ? nullptr : m_objects.front().get(), m_propertyName);
}

bool EditBoundedValuePropertyPopupController::hasRow(ListControl::ItemInfo const& item) const
{
    return rowOf(item) < m_labels.size();
}

std::string
EditBoundedValuePropertyPopupController::handleGetItemString(ListControl::ItemInfo const& item) const
{
    if (!hasRow(item))
        return {};
    switch (columnOf(item)) {
    case 0:
        return m_labels[rowOf(item)];
    case 1:
        return cellText(m_values[rowOf(item)], presentationFor(m_values[rowOf(item)]).get());
    default:
        reportOfPopup(name, "handleGetItemString", "Unknown column");
        return {};
    }
}

std::string
EditBoundedValuePropertyPopupController::handleGetItemEditString(ListControl::ItemInfo const& item) const
{
    if (!hasRow(item) || columnOf(item) != 1)
        return handleGetItemString(item);
    return cellEditText(m_values[rowOf(item)], presentationFor(m_values[rowOf(item)]).get());
}

std::optional<CheckState>
EditBoundedValuePropertyPopupController::handleGetCheckState(ListControl::ItemInfo const& item) const
{
    if (!hasRow(item) || columnOf(item) != 0)
        return std::nullopt;
    return m_values[rowOf(item)].isEmpty() ? CheckState::Unchecked : CheckState::Checked;
}

void EditBoundedValuePropertyPopupController::handleCheckBoxClicked(ListControl::ItemInfo const& item)
{
    if (!hasRow(item) || columnOf(item) != 0)
        return;
    auto const row = rowOf(item);
    auto& value = m_values[row];
    if (!value.isEmpty()) {
        value = FcValue();
    } else {
        giveType(row);
        if (value.isEmpty())
            reportOfPopup(name, "handleCheckBoxClicked",
                          "Could not figure out the correct measure type for the value to set.");
    }
    m_popup.list().redrawItem(row);
}

void EditBoundedValuePropertyPopupController::giveType(std::size_t row)
{
    auto const* const definition = ifc::findSchemaDefForProperty(*m_objects.front());
    if (auto const* const property = dynamic_cast<ifc::def::pset::PropertyDef const*>(definition)) {
        ifc::setCorrectValueType(*property, m_values[row]);
        return;
    }
    auto const other =
        std::find_if(m_values.begin(), m_values.end(), [](FcValue const& value) { return !value.isEmpty(); });
    if (other != m_values.end())
        m_values[row] = *other;
}

ListControl::LabelEditBeginResultParams EditBoundedValuePropertyPopupController::handleLabelEditBegin(
    ListControl::LabelEditBeginParams const& params) const
{
    auto const item = params.getItemToEdit();
    bool const canBeEdited = hasRow(item) && columnOf(item) == 1 && !m_values[rowOf(item)].isEmpty();
    return {canBeEdited ? ListControl::EditBox : ListControl::NoEdit, {}};
}

void EditBoundedValuePropertyPopupController::handleLabelEditEnd(
    ListControl::LabelEditEndParams const& params)
{
    if (!params.accepted)
        return;
    auto const item = params.getEditedItem();
    if (!hasRow(item))
        return;
    auto& value = m_values[rowOf(item)];
    if (!setValueFromCell(value, presentationFor(value).get(), params.getEditBoxText()))
        params.refuse(item);
}

void EditBoundedValuePropertyPopupController::handleClosed() const
{
    if (!m_callback)
        return;
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    auto const values = m_values;
    callback(values);
}

} // namespace qev::fc::ui
