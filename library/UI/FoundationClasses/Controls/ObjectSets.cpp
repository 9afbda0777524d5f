#include "UI/FoundationClasses/Controls/ObjectSets.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySetDefinition;
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

std::vector<std::shared_ptr<FcPropertySetDefinition const>> ownSets(FcObjectDefinition const& object)
{
    if (!isOfClass<FcObject>(object) && !isOfClass<FcTypeObject>(object))
        return {};
    return object.getPropertySetDefinitions<FcPropertySetDefinition>();
}

} // namespace qev::fc::ui
