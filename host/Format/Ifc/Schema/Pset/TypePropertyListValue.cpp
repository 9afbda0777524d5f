#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"

#include "Format/Ifc/Schema/Pset/ValueExport.h"
#include "Format/Ifc/Schema/Pset/ValueTypeCheck.h"

namespace qev::ifc::def::pset {

TypePropertyListValue::TypePropertyListValue() = default;

TypePropertyListValue::TypePropertyListValue(std::string type)
    : valueType(std::move(type))
{
}

TypePropertyListValue::~TypePropertyListValue() = default;

std::string TypePropertyListValue::sEntityName() const { return "IfcPropertyListValue"; }

bool TypePropertyListValue::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    return checkValueType(valueType, schema, errors);
}

void TypePropertyListValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element list = parent.addChild("TypePropertyListValue").addChild("ListValue");
    exportDataType(list, valueType, unit);
    exportValues(list, values);
}

} // namespace qev::ifc::def::pset
