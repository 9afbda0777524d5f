#include "UI/FoundationClasses/Controls/CommonSets.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/SchemaPset.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/Kernel/FcQuantitySet.h"
#include "UI/FoundationClasses/Controls/ObjectSets.h"

#include <algorithm>
#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using core::kernel::FcQuantitySet;

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySetControl::" + std::string(operation),
                   "UI/FoundationClasses/Controls/PropertySetControl");
}

template <class Set>
bool isClassOf(unsigned int classNumber)
{
    return Set::idFirst <= classNumber && classNumber <= Set::idLast;
}

PropertySetDefinitionType typeFromClass(unsigned int classNumber)
{
    if (isClassOf<FcPropertySet>(classNumber))
        return PropertySetDefinitionType::PropertySet;
    if (isClassOf<FcQuantitySet>(classNumber))
        return PropertySetDefinitionType::QuantitySet;
    reportFrom("getXmlSets::<lambda_2>::operator ()", "Unknown property set definition type.");
    return PropertySetDefinitionType::Unknown;
}

struct OwnSet
{
    std::string name;
    PropertySetDefinitionType type;
};

bool isAmong(std::vector<OwnSet> const& sets, std::string const& name)
{
    return std::any_of(sets.begin(), sets.end(), [&name](OwnSet const& set) { return set.name == name; });
}

/// The sets that \p object has beside \p known, which go before its own of the same name; each name once.
std::vector<OwnSet> ownSetsBeside(CommonSets::SetInfos const& known, FcObjectDefinition const& object)
{
    std::vector<OwnSet> sets;
    forEachOwnSet(object, [&](unsigned int classNumber, std::string const& name) {
        if (!known.contains(name) && !isAmong(sets, name))
            sets.push_back({name, typeFromClass(classNumber)});
    });
    return sets;
}

} // namespace

CommonSets::CommonSets(ifc::def::SchemaPset const* schemaPset)
    : m_schemaPset(schemaPset)
{
}

CommonSets::~CommonSets() = default;

CommonSets::SetInfos CommonSets::of(std::vector<std::shared_ptr<FcBase>> const& objects)
{
    std::optional<SetInfos> common;
    for (auto const& entity : objects) {
        if (!entity || !isOfClass<FcObjectDefinition>(*entity))
            continue;
        auto const& object = static_cast<FcObjectDefinition const&>(*entity);
        auto& kind = kindOf(object);
        if (!kind.isInSchema) {
            reportFrom("getXmlSets", "Schema entity doesn't exist.");
            return {};
        }
        if (common && !narrow(*common, object, kind))
            return {};
        if (!common) {
            common = kind.infos;
            for (auto const& set : ownSetsBeside(kind.infos, object))
                common->emplace(set.name, PropertySetDefinitionInfo(set.name, set.type));
            if (common->empty())
                return {};
        }
    }
    return common.value_or(SetInfos());
}

bool CommonSets::narrow(SetInfos& common, FcObjectDefinition const& object, ObjectKind& kind)
{
    // Common sets only ever go, so that their number tells whether any has gone.
    if (kind.commonCount != common.size()) {
        kind.commonCount = common.size();
        kind.missing.clear();
        for (auto const& [name, info] : common) {
            if (!kind.infos.contains(name))
                kind.missing.push_back(name);
        }
    }
    // Otherwise its own sets change nothing; those of an unknown type are still to be reported.
    bool const areOwnSetsAsked = !kind.missing.empty() || kind.infos.empty() || assert::Assert::isEnabled();
    if (!areOwnSetsAsked)
        return true;
    auto const own = ownSetsBeside(kind.infos, object);
    if (own.empty() && kind.infos.empty())
        return false;
    for (auto const& name : kind.missing) {
        if (!isAmong(own, name))
            common.erase(name);
    }
    return true;
}

CommonSets::ObjectKind& CommonSets::kindOf(FcObjectDefinition const& object)
{
    char const* const predefinedType = object.getPredefinedTypeText();
    auto const [position, isNew] = m_kinds.try_emplace(
        {object.getIdFirst(), predefinedType ? std::optional<std::string>(predefinedType) : std::nullopt});
    if (isNew)
        position->second = makeKind(object);
    return position->second;
}

CommonSets::ObjectKind CommonSets::makeKind(FcObjectDefinition const& object) const
{
    ObjectKind kind;
    auto const className = setClassName(object);
    auto const* const entity = m_schemaPset ? m_schemaPset->schema().findEntity(className) : nullptr;
    kind.isInSchema = entity != nullptr;
    if (!entity)
        return kind;
    char const* const predefinedType = object.getPredefinedTypeText();
    for (auto const* const set : m_schemaPset->getXmlSetsAllToEntity(*entity, true, {})) {
        if (!predefinedType || !isForOtherPredefinedType(*set, className, predefinedType))
            kind.infos.emplace(set->name, PropertySetDefinitionInfo(*set));
    }
    return kind;
}

} // namespace qev::fc::ui
