#pragma once

#include "FoundationClasses/Core/Kernel/FcObjectAttributes.h"

namespace qev::fc::core::kernel {

/// IfcObject: an occurrence, which may have a type object.
class HOSTFOUNDATIONCLASSES_EXPORT FcObject : public FcObjectAttributes
{
public:
    /// The type object, null when the object has none.
    [[nodiscard]] std::shared_ptr<FcTypeObject const> getTypeObject() const;

protected:
    [[nodiscard]] std::shared_ptr<FcObjectDefinition const> typeOfThis() const override;
};

} // namespace qev::fc::core::kernel
