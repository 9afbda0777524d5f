#pragma once

#include "Core/Id/Guid.h"
#include "FoundationClasses/Core/Kernel/FcRootAttributes.h"

namespace qev::fc::core::kernel {

/// IfcRoot: an entity with a global id, a name and a description.
class HOSTFOUNDATIONCLASSES_EXPORT FcRoot : public FcRootAttributes
{
public:
    /// The global id; a null id when the stored text is no valid one. The text itself is `GlobalId`.
    [[nodiscard]] Guid getGuid() const;
    void setGuid(Guid const& guid);

protected:
    void doAssign(FcBase const& other, FcCopySettings& settings) override;
};

} // namespace qev::fc::core::kernel
