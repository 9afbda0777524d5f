#include "FoundationClasses/Core/Kernel/PropertyContainer.h"

#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"

#include <algorithm>
#include <optional>

namespace qev::fc::core::kernel {

using resource::property::FcProperty;

std::vector<std::shared_ptr<FcProperty>> const& PropertyContainer::getProperties() const
{
    return get().get();
}

bool PropertyContainer::removeProperty(std::string const& name)
{
    auto const& properties = getProperties();
    auto const found = std::find_if(properties.begin(), properties.end(), [&name](auto const& property) {
        return property && property->Name.get() == name;
    });
    if (found == properties.end())
        return false;
    auto const property = *found;
    Data* const data = owner().getData();
    std::optional<ChangeLog::Step> step;
    if (data)
        step.emplace(data->changes(), "Remove property");
    edit([&property](auto& list) { list.erase(property); });
    if (data)
        data->deleteIfUnreferenced(property);
    return true;
}

void PropertyContainer::addProperty(std::shared_ptr<FcProperty> property)
{
    edit([&property](auto& list) { list.push_back(property); });
}

} // namespace qev::fc::core::kernel
