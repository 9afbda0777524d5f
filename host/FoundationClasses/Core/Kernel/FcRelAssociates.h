#pragma once

#include "FoundationClasses/Core/Kernel/FcRelAssociatesAttributes.h"

#include <vector>

namespace qev::fc::core::kernel {

/// IfcRelAssociates: connects objects with a document, a material, a classification and so on.
class HOSTFOUNDATIONCLASSES_EXPORT FcRelAssociates : public FcRelAssociatesAttributes
{
public:
    void setRelatedObjects(std::vector<FcDefinitionSelect>&& objects);
    /// Takes out every reference to \p object. The relation stays, also without any object.
    void eraseRelatedObjects(FcDefinitionSelect const& object);
};

} // namespace qev::fc::core::kernel
