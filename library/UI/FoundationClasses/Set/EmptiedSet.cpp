#include "UI/FoundationClasses/Set/EmptiedSet.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"

namespace qev::fc::ui {

void deleteEmptiedSet(core::kernel::FcObjectDefinition& object, core::kernel::FcPropertySetDefinition& set,
                      Data& data)
{
    auto const name = set.Name.get();
    if (!name)
        return;
    object.deletePropertySetDefinition(*name);
    // Objects that share the set keep it then, without any entry, which no set may be.
    set.deletePset(data);
}

} // namespace qev::fc::ui
