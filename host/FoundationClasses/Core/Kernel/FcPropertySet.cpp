#include "FoundationClasses/Core/Kernel/FcPropertySet.h"

#include "FoundationClasses/Resource/Property/FcProperty.h"

#include <algorithm>

namespace qev::fc::core::kernel {

bool FcPropertySet::hasProperty(std::string_view name) const
{
    auto const& properties = HasProperties.getProperties();
    return std::any_of(properties.begin(), properties.end(),
                       [name](auto const& property) { return property->Name.get() == name; });
}

std::vector<std::shared_ptr<FcBase>> FcPropertySet::ownedEntities() const
{
    auto const& properties = HasProperties.getProperties();
    return {properties.begin(), properties.end()};
}

} // namespace qev::fc::core::kernel
