#pragma once

#include "FoundationClasses/LocalValue.h"
#include "HostFoundationClassesExport.h"

namespace qev::fc {

class AttributeBase;
struct AttributeDescriptor;

/// The attribute as the generic property access sees it. A list of entities is no value: it gives nothing.
HOSTFOUNDATIONCLASSES_EXPORT LocalValue localValueOf(AttributeBase const& attribute,
                                                     AttributeDescriptor const& descriptor);

/// Stores a local value in an attribute; false, and no change, when it does not fit the attribute's type.
HOSTFOUNDATIONCLASSES_EXPORT bool
assignLocalValue(AttributeBase& attribute, AttributeDescriptor const& descriptor, LocalValue const& value);

} // namespace qev::fc
