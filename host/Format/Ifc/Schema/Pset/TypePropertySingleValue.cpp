#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"

#include "Format/Ifc/Schema/Pset/ValueExport.h"
#include "Format/Ifc/Schema/Pset/ValueTypeCheck.h"

namespace qev::ifc::def::pset {

TypePropertySingleValue::TypePropertySingleValue() = default;

TypePropertySingleValue::TypePropertySingleValue(std::string type, std::string unitText)
    : TypePropertyReferenceValue(std::move(type))
    , unit(std::move(unitText))
{
}

TypePropertySingleValue::~TypePropertySingleValue() = default;

std::string TypePropertySingleValue::sEntityName() const { return "IfcPropertySingleValue"; }

bool TypePropertySingleValue::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    return checkValueType(valueType, schema, errors);
}

void TypePropertySingleValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element element = parent.addChild("TypePropertySingleValue");
    exportDataType(element, valueType, unit);
}

} // namespace qev::ifc::def::pset
