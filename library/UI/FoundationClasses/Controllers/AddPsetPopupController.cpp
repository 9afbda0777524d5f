#include "UI/FoundationClasses/Controllers/AddPsetPopupController.h"

#include "Core/Localization/Localize.h"
#include "Format/Ifc/Model/ClassRelations.h"
#include "Format/Ifc/Schema/Entity.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "UI/FoundationClasses/Controllers/PopupLocalization.h"
#include "UI/FoundationClasses/PsetSorting.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace qev::fc::ui {

using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySetDefinition;
using core::kernel::FcTypeObject;
using ifc::def::xml::SetDef;
using ifc::def::xml::TemplateType;
using qev::ui::ListControl;

namespace {

constexpr char name[] = "AddPsetPopupController";

using Objects = std::vector<std::shared_ptr<FcObjectDefinition>>;

/// The nearest class that all objects belong to; null when there is none.
ifc::def::schema::Entity const* commonClassOf(Objects const& objects)
{
    if (objects.empty())
        return nullptr;
    std::string_view const first = objects.front()->getEntityName();
    auto const* common = ifc::getLowestCommonAncestor(first, first);
    for (auto object = objects.begin() + 1; object != objects.end() && common; ++object)
        common = ifc::getLowestCommonAncestor(common->name(), (*object)->getEntityName());
    return common;
}

std::optional<std::string> predefinedTypeOf(FcObjectDefinition const& object)
{
    if (char const* const own = object.getPredefinedTypeText(); own && *own)
        return own;
    if (!isOfClass<FcObject>(object))
        return std::nullopt;
    auto const typeObject = static_cast<FcObject const&>(object).getTypeObject();
    return typeObject ? predefinedTypeOf(*typeObject) : std::nullopt;
}

std::optional<std::string> commonPredefinedTypeOf(Objects const& objects)
{
    auto const common = predefinedTypeOf(*objects.front());
    bool const isCommon = std::all_of(objects.begin() + 1, objects.end(), [&](auto const& object) {
        return predefinedTypeOf(*object) == common;
    });
    return isCommon ? common : std::nullopt;
}

/// The names of the sets that every object has.
std::set<std::string> commonSetNamesOf(Objects const& objects)
{
    std::map<std::string, std::size_t> counts;
    for (auto const& object : objects) {
        for (auto const& set : object->getPropertySetDefinitions<FcPropertySetDefinition>()) {
            if (auto const& setName = set->Name.get())
                ++counts[*setName];
        }
    }
    std::set<std::string> names;
    for (auto const& [setName, count] : counts) {
        if (count == objects.size())
            names.insert(setName);
    }
    return names;
}

std::vector<SetDef const*> sortedSetsOf(ifc::def::SchemaPset const& schema)
{
    std::vector<SetDef const*> sets;
    schema.forEachDefinition([&sets](auto const&, ifc::def::SchemaPropertySetDefinitions const& definitions) {
        for (auto const& set : definitions.sets())
            sets.push_back(set.get());
    });
    std::stable_sort(sets.begin(), sets.end(), [](SetDef const* left, SetDef const* right) {
        return psetCompareLess(left->name, right->name);
    });
    return sets;
}

/// The class of occurrences that a class of types belongs to; any other class itself.
std::string normalisedClassName(std::string_view className)
{
    constexpr std::string_view typeEnding = "Type";
    constexpr std::string_view typeBeginning = "IfcType";
    if (className.size() > typeEnding.size() && className.ends_with(typeEnding))
        return std::string(className.substr(0, className.size() - typeEnding.size()));
    if (className.size() > typeBeginning.size() && className.starts_with(typeBeginning))
        return "Ifc" + std::string(className.substr(typeBeginning.size()));
    return std::string(className);
}

bool suitsTemplate(SetDef const& set, bool isForTypes)
{
    switch (set.templateType) {
    case TemplateType::PsetOccurrenceDriven:
    case TemplateType::QtoOccurrenceDriven:
        return !isForTypes;
    case TemplateType::PsetTypeDrivenOnly:
    case TemplateType::QtoTypeDrivenOnly:
        return isForTypes;
    default:
        return true;
    }
}

/// What the classes and predefined types that a set is for are held against.
struct Applicability
{
    std::set<std::string> classNames;
    std::optional<std::string> predefinedType;

    [[nodiscard]] bool admits(SetDef const& set) const
    {
        auto const& classes = set.applicableClasses;
        return classes.empty() || std::any_of(classes.begin(), classes.end(), [this](auto const& applicable) {
                   return classNames.contains(normalisedClassName(applicable.className)) &&
                          (applicable.predefinedType.empty() || applicable.predefinedType == predefinedType);
               });
    }
};

} // namespace

AddPsetPopupController::AddPsetPopupController(Objects objects)
    : AddPsetPopupController(std::move(objects),
                             ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion))
{
}

AddPsetPopupController::AddPsetPopupController(Objects objects, ifc::def::SchemaPset const* schema)
    : m_objects(std::move(objects))
{
    if (schema)
        collectSets(*schema);
    else
        reportOfPopup(name, name, "Could not load ifc schema");
}

AddPsetPopupController::~AddPsetPopupController() = default;

void AddPsetPopupController::collectSets(ifc::def::SchemaPset const& schema)
{
    auto const* const commonClass = commonClassOf(m_objects);
    if (!commonClass)
        return;
    Applicability applicability{{}, commonPredefinedTypeOf(m_objects)};
    for (auto const& className : ifc::getCompatibleClasses(commonClass->name()))
        applicability.classNames.insert(normalisedClassName(className));
    auto const present = commonSetNamesOf(m_objects);
    bool const isForTypes = entityCast<FcTypeObject>(m_objects.front()) != nullptr;
    for (auto const* const set : sortedSetsOf(schema)) {
        if (suitsTemplate(*set, isForTypes) && applicability.admits(*set) && !present.contains(set->name) &&
            std::find(m_sets.begin(), m_sets.end(), set) == m_sets.end())
            m_sets.push_back(set);
    }
}

void AddPsetPopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    m_popup.handle(list.onGetColumnHeaderText, handleGetColumnHeaderString);
    m_popup.handle(list.onGetItemText, [this](ListControl::ItemInfo const& item) {
        return PopupLocalization::getLocalizedItemString(m_sets, item, "");
    });
    m_popup.handle(list.onItemActivated,
                   [this](ListControl::ItemInfo const& item) { handleItemActivated(item); });
    list.setItemAndColumnCounts(m_sets.size(), 2);
}

void AddPsetPopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

std::string AddPsetPopupController::handleGetColumnHeaderString(std::size_t column)
{
    switch (column) {
    case 0:
        return qev::localize("Pset_Name", "FoundationClassesUi");
    case 1:
        return qev::localize("Pset_Description", "FoundationClassesUi");
    default:
        reportOfPopup(name, "handleGetColumnHeaderString", "Unknown column");
        return {};
    }
}

void AddPsetPopupController::handleItemActivated(ListControl::ItemInfo const& item) const
{
    auto const row = rowOf(item);
    if (row >= m_sets.size() || !m_callback)
        return;
    auto const& set = *m_sets[row];
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    callback(set);
}

} // namespace qev::fc::ui
