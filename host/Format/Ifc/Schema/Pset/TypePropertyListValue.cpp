#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"

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
    list.addChild("DataType").setAttribute("type", valueType);
    if (!unit.empty())
        list.addChild("UnitType").setAttribute("type", unit);
    if (values.empty())
        return;
    qev::xml::Element items = list.addChild("Values");
    for (std::string const& value : values)
        items.addChild("ValueItem", value);
}

} // namespace qev::ifc::def::pset
