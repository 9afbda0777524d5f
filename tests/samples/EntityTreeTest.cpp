#include "EntityTreeTest.h"

#include <map>
#include <string>

namespace qev::test::samples {

EntityTreeTest::EntityTreeTest()
    : opened(ifc::IfcFile::open(GetParam().path))
    , reports({"IfcMaterialList is deprecated, and therefore not implemented.",
               "Address type of PropertyReferenceValue not implemented",
               "AppliedValue type of PropertyReferenceValue not implemented",
               "Organization type of PropertyReferenceValue not implemented",
               "Person type of PropertyReferenceValue not implemented",
               "PersonAndOrganization type of PropertyReferenceValue not implemented",
               "Table type of PropertyReferenceValue not implemented"})
{
}

void EntityTreeTest::forEachEntity(Visit const& visit)
{
    std::vector<fc::EntityIndex> indices(data().entityCount());
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<fc::EntityIndex>(i);
    visitAll(indices, visit);
}

void EntityTreeTest::forSample(std::size_t mostOfAClass, Visit const& visit)
{
    std::map<unsigned int, std::size_t> counts;
    auto const entityCount = static_cast<fc::EntityIndex>(data().entityCount());
    for (fc::EntityIndex index = 0; index < entityCount; ++index)
        ++counts[data().classNumber(index)];
    std::map<unsigned int, std::size_t> seen;
    std::vector<fc::EntityIndex> indices;
    for (fc::EntityIndex index = 0; index < entityCount; ++index) {
        auto const number = data().classNumber(index);
        std::size_t const step = (counts[number] + mostOfAClass - 1) / mostOfAClass;
        if (seen[number]++ % step == 0)
            indices.push_back(index);
    }
    visitAll(indices, visit);
}

void EntityTreeTest::visitAll(std::vector<fc::EntityIndex> const& indices, Visit const& visit)
{
    constexpr std::size_t mostObjects = 20'000;
    constexpr int mostAfterFailure = 50;
    std::size_t objectsKept = 0;
    int afterFailure = 0;
    for (fc::EntityIndex const index : indices) {
        if (auto const entity = data().entity(index)) {
            std::string const where =
                '#' + std::to_string(opened.file->idOf(index)) + " " + entity->getEntityName();
            SCOPED_TRACE(where);
            visit(entity);
            reports.take(where);
        }
        if (data().objectCount() > objectsKept + mostObjects) {
            data().releaseUnused();
            objectsKept = data().objectCount();
        }
        if (HasFailure() && ++afterFailure > mostAfterFailure)
            return;
    }
}

} // namespace qev::test::samples
