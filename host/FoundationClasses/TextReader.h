#pragma once

#include "HostFoundationClassesExport.h"

#include <optional>
#include <string>

namespace qev::fc {

class AttributeBase;
struct AttributeDescriptor;

/// Stores a plain attribute from the text that `getAttributeAsString` gives of it; the empty text unsets an
/// optional one. False, and no change, when the text does not fit or the attribute is no plain value.
HOSTFOUNDATIONCLASSES_EXPORT bool assignText(AttributeBase& attribute, AttributeDescriptor const& descriptor,
                                             std::string const& text);

/// The number of a plain numeric attribute, in SI units; no value for others and when unset.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<double> attributeNumber(AttributeBase const& attribute,
                                                                   AttributeDescriptor const& descriptor);

/// Orders two attributes of one descriptor: below 0, 0, above 0. References compare by place.
HOSTFOUNDATIONCLASSES_EXPORT int compareAttributes(AttributeBase const& a, AttributeBase const& b,
                                                   AttributeDescriptor const& descriptor);

} // namespace qev::fc
