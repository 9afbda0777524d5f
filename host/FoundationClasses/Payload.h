#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/Binary.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Logical.h"
#include "HostFoundationClassesExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qev::fc {

class AttributeReader;
class AttributeWriter;

/// The content of a value of some defined type. Numbers with a unit are in SI units.
/// Lists hold numbers only: angles in degrees, minutes and seconds, complex numbers, indices.
using Payload = std::variant<std::monostate, bool, Logical, std::int64_t, double, std::string, Binary,
                             std::vector<std::int64_t>, std::vector<double>>;

/// The payload a value of this kind starts with: false, 0, an empty text.
HOSTFOUNDATIONCLASSES_EXPORT Payload defaultPayload(ValueKind kind, bool isAggregate);

/// Text for display; numbers in the shortest form that reads back equal.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<std::string> payloadText(Payload const& payload);

/// The number of a numeric payload.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<double> payloadNumber(Payload const& payload);

/// Parses \p text as a payload of the kind; no value when it does not parse.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<Payload> parsePayload(ValueKind kind, bool isAggregate,
                                                                 std::string_view text);

/// Reads a payload of \p typeName ("IfcLengthMeasure") from a record, converted to SI units.
/// No value when \p value is of another kind.
HOSTFOUNDATIONCLASSES_EXPORT std::optional<Payload> readPayload(std::string_view typeName, ValueKind kind,
                                                                bool isAggregate,
                                                                step::StepValue const& value,
                                                                AttributeReader const& reader);

/// The payload as a record has it, in the units of the file.
HOSTFOUNDATIONCLASSES_EXPORT step::StepValue writePayload(std::string_view typeName, Payload const& payload,
                                                          AttributeWriter const& writer);

} // namespace qev::fc
