#include "UI/FoundationClasses/Controls/ObjectSets.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

#include <optional>
#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcTypeObject;

namespace {

constexpr std::string_view typeSuffix = "TYPE";

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
        if (str::toUpper(applicable.className) != className)
            continue;
        if (applicable.predefinedType.empty() || applicable.predefinedType == predefinedType)
            return false;
        isTied = true;
    }
    return isTied;
}

void forEachOwnSet(FcObjectDefinition const& object,
                   std::function<void(unsigned int classNumber, std::string const& name)> const& visit)
{
    if (!isOfClass<FcObject>(object) && !isOfClass<FcTypeObject>(object))
        return;
    object.forEachAttachedSetName([&visit](unsigned int classNumber, std::optional<std::string> const& name) {
        if (name)
            visit(classNumber, *name);
        return true;
    });
}

} // namespace qev::fc::ui
