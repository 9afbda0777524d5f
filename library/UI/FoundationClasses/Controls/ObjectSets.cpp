#include "UI/FoundationClasses/Controls/ObjectSets.h"

#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

#include <algorithm>
#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcRelDefinesByProperties;
using core::kernel::FcTypeObject;

namespace {

constexpr std::string_view typeSuffix = "TYPE";

void appendSet(std::vector<std::shared_ptr<FcBase>>& sets, std::shared_ptr<FcBase> set)
{
    if (set)
        sets.push_back(std::move(set));
}

void appendSets(std::vector<std::shared_ptr<FcBase>>& sets, FcRelDefinesByProperties const& relation)
{
    auto const& definition = relation.RelatingPropertyDefinition.get();
    appendSet(sets, definition.entity());
    for (auto const& reference : definition.references())
        appendSet(sets, reference.entity());
}

} // namespace

std::string setClassName(FcObjectDefinition const& object)
{
    std::string name = object.getEntityNameUpper();
    bool const isConcreteType =
        isOfClass<FcTypeObject>(object) && object.getIdFirst() != FcTypeObject::idFirst;
    if (isConcreteType)
        name.resize(name.size() - typeSuffix.size());
    return name;
}

bool isForOtherPredefinedType(ifc::def::xml::SetDef const& set, std::string const& className,
                              std::string const& predefinedType)
{
    bool isTied = false;
    for (auto const& applicable : set.applicableClasses) {
        if (ifc::def::schema::toUpperName(applicable.className) != className)
            continue;
        if (applicable.predefinedType.empty() || applicable.predefinedType == predefinedType)
            return false;
        isTied = true;
    }
    return isTied;
}

std::vector<std::shared_ptr<FcBase>> ownSets(FcObjectDefinition& object)
{
    std::vector<std::shared_ptr<FcBase>> sets;
    if (isOfClass<FcObject>(object)) {
        for (auto const& weakRelation : static_cast<FcObject&>(object).IsDefinedBy()) {
            if (auto const relation = weakRelation.lock())
                appendSets(sets, *relation);
        }
    } else if (isOfClass<FcTypeObject>(object)) {
        auto const& list = static_cast<FcTypeObject&>(object).HasPropertySets.get();
        if (list) {
            for (auto const& set : list->get())
                appendSet(sets, set);
        }
    }
    return sets;
}

} // namespace qev::fc::ui
