#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"

namespace qev::fc::core::kernel {

void FcTypeObject::eraseHasPropertySets(std::shared_ptr<FcPropertySetDefinition> const& set)
{
    if (!HasPropertySets.get())
        return;
    HasPropertySets.edit([&set](auto& sets) {
        if (sets->erase(set) && sets->get().empty())
            sets.reset();
    });
}

} // namespace qev::fc::core::kernel
