#include "SharedSets.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Data.h"

#include <set>

namespace qev::application {

using fc::core::kernel::FcRelDefinesByProperties;

std::size_t countOthersWithSet(fc::core::kernel::FcObjectDefinition const& object, std::string const& setName)
{
    auto const* const data = object.getData();
    if (!data)
        return 0;
    auto const slot =
        slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatingPropertyDefinition");
    std::set<fc::EntityIndex> others;
    for (auto const& set : object.attachedSets()) {
        if (set->getAttributeAsString("Name").value_or("") != setName)
            continue;
        for (auto const index : data->relating(set->getIndex(), FcRelDefinesByProperties::idFirst,
                                               FcRelDefinesByProperties::idLast, slot)) {
            if (auto const relation = fc::entityCast<FcRelDefinesByProperties>(data->entity(index))) {
                for (auto const& reference : relation->RelatedObjects.get().references())
                    others.insert(reference.index());
            }
        }
    }
    others.erase(object.getIndex());
    others.erase(fc::noEntity);
    return others.size();
}

} // namespace qev::application
