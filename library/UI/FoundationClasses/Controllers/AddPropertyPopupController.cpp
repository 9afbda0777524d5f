#include "UI/FoundationClasses/Controllers/AddPropertyPopupController.h"

#include "Core/Localization/Localize.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "UI/FoundationClasses/Controllers/PopupLocalization.h"

#include <algorithm>

namespace qev::fc::ui {

using core::kernel::FcPropertySetDefinition;
using ifc::def::pset::PropertyDef;
using ifc::def::xml::Def;
using ifc::def::xml::SetDef;
using qev::ui::ListControl;

namespace {

constexpr char name[] = "AddPropertyPopupController";
constexpr attr::Colour unsupportedColour{255, 180, 180, 180};

std::string nameOf(FcPropertySetDefinition const& set) { return set.Name.get().value_or(""); }

bool isUnsupported(Def const& definition)
{
    auto const* const type = dynamic_cast<PropertyDef const*>(&definition) ? definition.typeBase() : nullptr;
    return type && type->sEntityName() == "IfcPropertyReferenceValue";
}

} // namespace

AddPropertyPopupController::AddPropertyPopupController() = default;

AddPropertyPopupController::AddPropertyPopupController(Sets psets)
    : AddPropertyPopupController(std::move(psets),
                                 ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion))
{
}

AddPropertyPopupController::AddPropertyPopupController(Sets psets, ifc::def::SchemaPset const* schema)
    : m_psets(std::move(psets))
{
    if (m_psets.empty())
        return;
    m_psetName = nameOf(*m_psets.front());
    if (!m_psetName.empty())
        collectItems(schema);
}

AddPropertyPopupController::~AddPropertyPopupController() = default;

void AddPropertyPopupController::collectItems(ifc::def::SchemaPset const* schema)
{
    bool const haveOneName = std::all_of(m_psets.begin(), m_psets.end(),
                                         [this](auto const& set) { return nameOf(*set) == m_psetName; });
    if (!haveOneName) {
        reportOfPopup(name, name, "Psets are of different types...");
        return;
    }
    if (!schema) {
        reportOfPopup(name, name, "Could not load ifc schema");
        return;
    }
    if (auto const* const set = schema->pXmlSetFromName(m_psetName))
        fillItems(*set);
    else
        reportOfPopup(name, name, "Unknown pset");
}

void AddPropertyPopupController::fillItems(SetDef const& set)
{
    for (auto const* const definition : set.entries()) {
        if (!isPresentInAllPsets(definition->name))
            m_items.push_back(definition);
    }
    if (!m_items.empty())
        m_items.push_back(nullptr);
}

bool AddPropertyPopupController::isPresentInAllPsets(std::string_view propertyName) const
{
    return !m_psets.empty() && std::all_of(m_psets.begin(), m_psets.end(), [propertyName](auto const& set) {
        return set->hasProperty(propertyName);
    });
}

bool AddPropertyPopupController::isAddAllRow(std::size_t row) const
{
    return row < m_items.size() && !m_items[row];
}

bool AddPropertyPopupController::isUnsupportedRow(std::size_t row) const
{
    return row < m_items.size() && m_items[row] && isUnsupported(*m_items[row]);
}

void AddPropertyPopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    m_popup.handle(list.onGetColumnHeaderText, handleGetColumnHeaderString);
    m_popup.handle(list.onGetItemText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemString(item); });
    m_popup.handle(list.onItemActivated,
                   [this](ListControl::ItemInfo const& item) { handleItemActivated(item); });
    m_popup.handle(list.onGetItemStyle,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemStyle(item); });
    list.setItemAndColumnCounts(m_items.size(), 2);
}

void AddPropertyPopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

std::string AddPropertyPopupController::handleGetColumnHeaderString(std::size_t column)
{
    switch (column) {
    case 0:
        return qev::localize("PsetProperty_Name", "FoundationClassesUi");
    case 1:
        return qev::localize("PsetProperty_Description", "FoundationClassesUi");
    default:
        reportOfPopup(name, "handleGetColumnHeaderString", "Unknown column");
        return {};
    }
}

std::string AddPropertyPopupController::handleGetItemString(ListControl::ItemInfo const& item) const
{
    auto const row = rowOf(item);
    if (isAddAllRow(row)) {
        if (columnOf(item) != 0)
            return {};
        return qev::localize("AddPropertiesPopup_AddAll", "FoundationClassesUi");
    }
    auto text = PopupLocalization::getLocalizedItemString(m_items, item, m_psetName + ".");
    if (isUnsupportedRow(row))
        text += ' ' + qev::localize("NotSupportedParenthesis", "FoundationClassesUi");
    return text;
}

ListControl::ItemStyle AddPropertyPopupController::handleGetItemStyle(ListControl::ItemInfo const& item) const
{
    ListControl::ItemStyle style;
    if (isAddAllRow(rowOf(item)))
        style.flags |= ListControl::ItemStyle::Emphasis;
    if (isUnsupportedRow(rowOf(item)))
        style.textColour = unsupportedColour;
    return style;
}

void AddPropertyPopupController::handleItemActivated(ListControl::ItemInfo const& item) const
{
    auto const row = rowOf(item);
    if (row >= m_items.size() || isUnsupportedRow(row) || !m_callback)
        return;
    auto const chosen = isAddAllRow(row) ? getSupportedItems() : std::vector{m_items[row]};
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    callback(chosen);
}

std::vector<Def const*> AddPropertyPopupController::getSupportedItems() const
{
    std::vector<Def const*> items;
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(items),
                 [](Def const* definition) { return definition && !isUnsupported(*definition); });
    return items;
}

} // namespace qev::fc::ui
