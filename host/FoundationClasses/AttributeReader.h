#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/EntityIndex.h"
#include "FoundationClasses/UnitScale.h"
#include "HostFoundationClassesExport.h"

#include <string_view>

namespace qev::fc {

class Data;
struct AttributeDescriptor;

/// What the reading of attributes needs to know of the file around the record.
class HOSTFOUNDATIONCLASSES_EXPORT AttributeReader
{
public:
    virtual ~AttributeReader();

    [[nodiscard]] virtual Data& data() const = 0;
    /// The place of record \p id, `noEntity` when there is no such record.
    [[nodiscard]] virtual EntityIndex indexFromId(step::InstanceId id) const = 0;
    /// The scale of a measure type ("IfcLengthMeasure") for the record being read.
    [[nodiscard]] virtual UnitScale scaleOf(std::string_view measureType) const = 0;
    /// Tells that \p found stands where \p expected belongs.
    virtual void mismatch(AttributeDescriptor const& attribute, std::string_view expected,
                          step::StepValue const& found) = 0;
};

} // namespace qev::fc
