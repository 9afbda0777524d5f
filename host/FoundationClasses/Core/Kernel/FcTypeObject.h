#pragma once

#include "FoundationClasses/Core/Kernel/FcTypeObjectAttributes.h"

namespace qev::fc::core::kernel {

/// IfcTypeObject: what many occurrences have in common.
class HOSTFOUNDATIONCLASSES_EXPORT FcTypeObject : public FcTypeObjectAttributes
{
public:
    /// Detaches a set from this type. The list becomes unset with its last set; a set that this type
    /// does not have changes nothing.
    void eraseHasPropertySets(std::shared_ptr<FcPropertySetDefinition> const& set);
};

} // namespace qev::fc::core::kernel
