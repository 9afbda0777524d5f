#include "ObjectViewing.h"

#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Data.h"
#include "HeadlessGrid.h"

#include <algorithm>

namespace qev::benchmarks {

std::size_t viewObjects(std::shared_ptr<fc::Data> const& data, std::size_t objectCount)
{
    using fc::core::kernel::FcObject;
    auto const objects = data->indicesFromId(FcObject::idFirst, FcObject::idLast);
    std::size_t const step = std::max<std::size_t>(1, objects.size() / objectCount);
    application::HeadlessGrid session(data, true);
    std::size_t rows = 0;
    for (std::size_t i = 0; i < objects.size() && i / step < objectCount; i += step) {
        session.show({data->entity(objects[i])});
        for (application::GridGroup const& group : session.groups())
            rows += group.rows.size();
        session.show({});
        data->releaseUnused();
    }
    return rows;
}

} // namespace qev::benchmarks
