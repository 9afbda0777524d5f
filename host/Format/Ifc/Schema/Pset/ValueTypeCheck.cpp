#include "Format/Ifc/Schema/Pset/ValueTypeCheck.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/Type.h"

namespace qev::ifc::def::pset {

bool checkValueType(std::string_view valueType, schema::Schema const& schema, xml::XmlSetErrors& errors)
{
    schema::ObjectBase const* const object = schema.find(str::toUpper(valueType));
    if (dynamic_cast<schema::Type const*>(object))
        return true;
    errors.add("The value type \"" + std::string(valueType) + "\" is unknown.");
    return false;
}

} // namespace qev::ifc::def::pset
