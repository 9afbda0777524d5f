#include "Format/Ifc/Schema/Pset/TypePropertyReferenceValue.h"

namespace qev::ifc::def::pset {

TypePropertyReferenceValue::TypePropertyReferenceValue() = default;

TypePropertyReferenceValue::TypePropertyReferenceValue(std::string referencedClass)
    : valueType(std::move(referencedClass))
{
}

TypePropertyReferenceValue::~TypePropertyReferenceValue() = default;

std::string TypePropertyReferenceValue::sEntityName() const { return "IfcPropertyReferenceValue"; }

bool TypePropertyReferenceValue::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    if (schema.findEntityByName(valueType))
        return true;
    errors.add("The referenced class \"" + valueType + "\" is unknown.");
    return false;
}

void TypePropertyReferenceValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    parent.addChild("TypePropertyReferenceValue").setAttribute("reftype", valueType);
}

} // namespace qev::ifc::def::pset
