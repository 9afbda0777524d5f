#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "FoundationClasses/UnitScale.h"
#include "HostFoundationClassesExport.h"

#include <string_view>

namespace qev::fc {

class FcBase;
class ReferenceBase;

/// What the writing of attributes needs to know of the file around the record.
class HOSTFOUNDATIONCLASSES_EXPORT AttributeWriter
{
public:
    virtual ~AttributeWriter();

    /// The id of the entity behind a reference, 0 for one that leads nowhere.
    [[nodiscard]] virtual step::InstanceId idOf(ReferenceBase const& reference) const = 0;
    [[nodiscard]] virtual UnitScale scaleOf(std::string_view measureType) const = 0;
};

} // namespace qev::fc
