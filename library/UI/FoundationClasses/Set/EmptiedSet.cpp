#include "UI/FoundationClasses/Set/EmptiedSet.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"

namespace qev::fc::ui {

using core::kernel::FcPropertySetDefinition;

void deleteEmptiedSet(core::kernel::FcObjectDefinition& object, FcPropertySetDefinition& set, Data& data)
{
    auto const name = set.Name.get();
    if (!name)
        return;
    // A property set and a quantity set of an object may have one name, which finds the first.
    if (object.getPropertySetDefinitionNonConst<FcPropertySetDefinition>(*name).get() == &set)
        object.deletePropertySetDefinition(*name);
    // Objects that share the set keep it then, without any entry, which no set may be.
    set.deletePset(data);
}

} // namespace qev::fc::ui
