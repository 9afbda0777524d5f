#include "SpatialStructure.h"

#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "FoundationClasses/Data.h"

#include <memory>
#include <set>
#include <vector>

namespace qev::benchmarks {

namespace {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcProject;
using fc::core::productextension::FcSpatialElement;

std::size_t countElements(FcObjectDefinition const& place)
{
    if (!fc::isOfClass<FcSpatialElement>(place))
        return 0;
    std::size_t count = 0;
    for (auto const& reference : static_cast<FcSpatialElement const&>(place).ContainsElements()) {
        if (auto const relation = reference.lock())
            count += relation->RelatedElements->size();
    }
    return count;
}

} // namespace

std::size_t walkSpatialStructure(fc::Data& data)
{
    std::size_t count = 0;
    std::set<fc::EntityIndex> known;
    std::vector<std::shared_ptr<FcObjectDefinition>> waiting;
    for (auto const& project : data.entities<FcProject>())
        waiting.push_back(project);
    while (!waiting.empty()) {
        auto const place = waiting.back();
        waiting.pop_back();
        if (!known.insert(place->getIndex()).second)
            continue;
        count += countElements(*place);
        for (auto const& reference : place->IsDecomposedBy()) {
            auto const relation = reference.lock();
            if (!relation)
                continue;
            for (auto const& part : relation->RelatedObjects->get()) {
                if (fc::isOfClass<FcSpatialElement>(*part))
                    waiting.push_back(part);
            }
        }
    }
    return count;
}

} // namespace qev::benchmarks
