#pragma once

#include "FoundationClasses/Core/Kernel/FcPropertySetAttributes.h"

namespace qev::fc::core::kernel {

/// IfcPropertySet: named properties.
class HOSTFOUNDATIONCLASSES_EXPORT FcPropertySet : public FcPropertySetAttributes
{
public:
    [[nodiscard]] bool hasProperty(std::string_view name) const override;

protected:
    [[nodiscard]] std::vector<std::shared_ptr<FcBase>> ownedEntities() const override;
};

} // namespace qev::fc::core::kernel
