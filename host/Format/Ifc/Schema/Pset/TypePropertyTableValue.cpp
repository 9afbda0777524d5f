#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"

#include "Format/Ifc/Schema/Pset/ValueExport.h"
#include "Format/Ifc/Schema/Pset/ValueTypeCheck.h"

namespace qev::ifc::def::pset {

namespace {

void exportColumn(qev::xml::Element& table, std::string_view name, std::string const& type,
                  std::string const& unit, std::vector<std::string> const& values)
{
    qev::xml::Element column = table.addChild(name);
    exportDataType(column, type, unit);
    exportValues(column, values);
}

} // namespace

TypePropertyTableValue::TypePropertyTableValue() = default;

TypePropertyTableValue::TypePropertyTableValue(std::string definingType, std::string definedType)
    : definingValueType(std::move(definingType))
    , definedValueType(std::move(definedType))
{
}

TypePropertyTableValue::~TypePropertyTableValue() = default;

std::string TypePropertyTableValue::sEntityName() const { return "IfcPropertyTableValue"; }

bool TypePropertyTableValue::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    bool const definingIsKnown = checkValueType(definingValueType, schema, errors);
    bool const definedIsKnown = checkValueType(definedValueType, schema, errors);
    return definingIsKnown && definedIsKnown;
}

void TypePropertyTableValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element table = parent.addChild("TypePropertyTableValue");
    table.addChild("Expression", expression);
    exportColumn(table, "DefiningValue", definingValueType, definingUnit, definingValues);
    exportColumn(table, "DefinedValue", definedValueType, definedUnit, definedValues);
}

} // namespace qev::ifc::def::pset
