#include "FoundationClasses/Core/Kernel/FcRelAssociates.h"

#include <utility>

namespace qev::fc::core::kernel {

void FcRelAssociates::setRelatedObjects(std::vector<FcDefinitionSelect>&& objects)
{
    RelatedObjects = std::move(objects);
}

void FcRelAssociates::eraseRelatedObjects(FcDefinitionSelect const& object)
{
    RelatedObjects.edit([&object](std::vector<FcDefinitionSelect>& objects) { std::erase(objects, object); });
}

} // namespace qev::fc::core::kernel
