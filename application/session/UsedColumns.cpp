#include "UsedColumns.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Quantity/FcPhysicalQuantity.h"

#include <algorithm>

namespace qev::application {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcPropertySetDefinition;
using fc::core::productextension::FcElementQuantity;

namespace {

constexpr std::size_t mostObjects = 200;

} // namespace

void UsedColumns::lookAt(std::vector<std::shared_ptr<fc::FcBase>> const& objects)
{
    m_used.clear();
    auto const step = std::max<std::size_t>(1, objects.size() / mostObjects);
    for (std::size_t i = 0; i < objects.size(); i += step)
        if (objects[i])
            add(*objects[i]);
}

std::optional<bool> UsedColumns::isPropertyToBeHiddenByDefault(std::string const& setName,
                                                               std::string const& propertyName) const
{
    // Columns of no set tell which object a row is.
    if (setName.empty())
        return false;
    return !m_used.contains({setName, propertyName});
}

void UsedColumns::add(fc::FcBase const& object)
{
    if (!fc::isOfClass<FcObjectDefinition>(object))
        return;
    auto const& definition = static_cast<FcObjectDefinition const&>(object);
    for (auto const& set : definition.getPropertySetDefinitions<FcPropertySetDefinition>()) {
        auto const setName = set->Name.get().value_or("");
        if (fc::isOfClass<FcPropertySet>(*set)) {
            for (auto const& property : static_cast<FcPropertySet const&>(*set).HasProperties.getProperties())
                if (property)
                    m_used.emplace(setName, property->getAttributeAsString("Name").value_or(""));
        } else if (fc::isOfClass<FcElementQuantity>(*set)) {
            for (auto const& quantity : static_cast<FcElementQuantity const&>(*set).Quantities.get().get())
                if (quantity)
                    m_used.emplace(setName, quantity->getAttributeAsString("Name").value_or(""));
        }
    }
}

} // namespace qev::application
