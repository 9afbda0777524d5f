#include "Format/Ifc/Model/ClassRelations.h"

#include "Format/Ifc/Schema/SchemaLoader.h"

namespace qev::ifc {

using def::schema::Entity;

namespace {

Entity const* entityOf(std::string_view className)
{
    auto const* const classes = SchemaLoader::curr().classesFromName(SchemaLoader::modelVersion);
    return classes ? classes->findEntityByName(className) : nullptr;
}

} // namespace

std::vector<std::string> getCompatibleClasses(std::string_view className)
{
    std::vector<std::string> names;
    for (Entity const* level = entityOf(className); level; level = level->supertype())
        names.push_back(level->name());
    return names;
}

Entity const* getLowestCommonAncestor(std::string_view first, std::string_view second)
{
    Entity const* const other = entityOf(second);
    if (!other)
        return nullptr;
    Entity const* level = entityOf(first);
    while (level && !other->isA(*level))
        level = level->supertype();
    return level;
}

} // namespace qev::ifc
