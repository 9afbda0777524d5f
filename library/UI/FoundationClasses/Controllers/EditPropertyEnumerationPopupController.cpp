#include "UI/FoundationClasses/Controllers/EditPropertyEnumerationPopupController.h"

#include "Core/Localization/Localize.h"
#include "Core/String/Ascii.h"
#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"

#include <algorithm>

namespace qev::fc::ui {

using qev::ui::CheckState;
using qev::ui::ListControl;
using resource::measure::FcSimpleValue;
using resource::measure::FcValue;
using resource::property::FcPropertyEnumeratedValue;

namespace {

constexpr char name[] = "EditPropertyEnumerationPopupController";

bool says(FcValue const& value, std::string const& text)
{
    return str::trimmed(value.getAsString(false).value_or("")) == text;
}

} // namespace

EditPropertyEnumerationPopupController::EditPropertyEnumerationPopupController(
    std::vector<std::shared_ptr<FcPropertyEnumeratedValue>> objects)
    : m_objects(std::move(objects))
{
    if (!holdsOneObject(m_objects, name))
        return;
    auto const& property = *m_objects.front();
    m_values = ifc::getPossibleEnumValues(property);
    m_selected = property.EnumerationValues.get().value_or(Values());
}

EditPropertyEnumerationPopupController::~EditPropertyEnumerationPopupController() = default;

void EditPropertyEnumerationPopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    m_popup.handle(list.onGetColumnHeaderText, handleGetColumnHeaderString);
    m_popup.handle(list.onGetItemText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemString(item); });
    m_popup.handle(list.onGetCheckState,
                   [this](ListControl::ItemInfo const& item) { return handleGetCheckState(item); });
    m_popup.handle(list.onCheckBoxClicked, [this](ListControl::ItemInfo const& item, CheckState newState) {
        handleCheckBoxClicked(item, newState);
    });
    m_popup.handle(m_popup.control().closed, [this] { handleClosed(); });
    list.setItemAndColumnCounts(m_values.size(), 1);
    list.enableColumnCheckBoxes(0, ListControl::BoxWithValue, nullptr, nullptr);
}

void EditPropertyEnumerationPopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

std::string EditPropertyEnumerationPopupController::handleGetColumnHeaderString(std::size_t column)
{
    if (column == 0)
        return qev::localize("Enumeration_Values", "FoundationClassesUi");
    reportOfPopup(name, "handleGetColumnHeaderString", "Unknown column");
    return {};
}

std::string
EditPropertyEnumerationPopupController::handleGetItemString(ListControl::ItemInfo const& item) const
{
    if (rowOf(item) >= m_values.size())
        return {};
    if (columnOf(item) == 0)
        return m_values[rowOf(item)];
    reportOfPopup(name, "handleGetItemString", "Unknown column");
    return {};
}

std::optional<CheckState>
EditPropertyEnumerationPopupController::handleGetCheckState(ListControl::ItemInfo const& item) const
{
    if (rowOf(item) >= m_values.size())
        return std::nullopt;
    auto const& text = m_values[rowOf(item)];
    bool const isSelected = std::any_of(m_selected.begin(), m_selected.end(),
                                        [&text](FcValue const& value) { return says(value, text); });
    return isSelected ? CheckState::Checked : CheckState::Unchecked;
}

void EditPropertyEnumerationPopupController::handleCheckBoxClicked(ListControl::ItemInfo const& item,
                                                                   CheckState newState)
{
    if (rowOf(item) >= m_values.size())
        return;
    FcValue value(FcSimpleValue(m_values[rowOf(item)]));
    if (newState == CheckState::Checked)
        m_selected.push_back(std::move(value));
    else
        std::erase_if(m_selected,
                      [&value](FcValue const& other) { return !(other < value) && !(value < other); });
}

void EditPropertyEnumerationPopupController::handleClosed() const
{
    if (!m_callback)
        return;
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    auto const values = m_selected;
    callback(values);
}

} // namespace qev::fc::ui
