#include "library/kit/ToySchema.h"

#include "Format/Ifc/Schema/SchemaText.h"

namespace qev::test {

std::unique_ptr<ifc::def::SchemaPset> toySchema()
{
    auto schema = ifc::def::schema::parseSchema("schema TOY\n\n"
                                                "type IfcLabel = STRING\n\n"
                                                "entity IfcProduct\n  Name ? IfcLabel\n\n"
                                                "entity IfcDoor : IfcProduct\n\n"
                                                "entity IfcSpace : IfcProduct\n\n"
                                                "entity IfcWall : IfcProduct\n");
    return std::make_unique<ifc::def::SchemaPset>(std::move(schema));
}

} // namespace qev::test
