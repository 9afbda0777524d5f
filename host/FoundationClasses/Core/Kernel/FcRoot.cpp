#include "FoundationClasses/Core/Kernel/FcRoot.h"

namespace qev::fc::core::kernel {

Guid FcRoot::getGuid() const { return Guid::fromString(GlobalId.get()).value_or(Guid()); }

void FcRoot::setGuid(Guid const& guid) { GlobalId = guid.toString(); }

void FcRoot::doAssign(FcBase const& other, FcCopySettings& settings)
{
    FcRootAttributes::doAssign(other, settings);
    if (!settings.keepGlobalId)
        setGuid(Guid::generate());
}

} // namespace qev::fc::core::kernel
