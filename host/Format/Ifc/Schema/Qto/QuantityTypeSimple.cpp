#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

QuantityTypeSimple::~QuantityTypeSimple() = default;

bool QuantityTypeSimple::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    schema::Entity const* const entity = schema.findEntityByName(sEntityName());
    if (entity && entity->findAttribute(sValueAttribute()))
        return true;
    errors.add("The quantity " + sEntityName() + " is unknown.");
    return false;
}

} // namespace qev::ifc::def::qto
