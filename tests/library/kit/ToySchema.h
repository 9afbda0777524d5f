#pragma once

#include "Format/Ifc/Schema/SchemaPset.h"

#include <memory>
#include <utility>

namespace qev::test {

/// A schema with the classes IfcWall, IfcDoor and IfcSpace and without sets.
[[nodiscard]] std::unique_ptr<ifc::def::SchemaPset> toySchema();

/// The same with these sets, in this order.
template <class... Sets>
[[nodiscard]] std::unique_ptr<ifc::def::SchemaPset> toySchemaWith(std::unique_ptr<Sets>... sets)
{
    ifc::def::SchemaPropertySetDefinitions definitions;
    (definitions.add(std::move(sets)), ...);
    auto schema = toySchema();
    schema->addDefinitions("Toy", std::move(definitions));
    return schema;
}

} // namespace qev::test
