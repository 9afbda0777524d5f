#include "Format/Ifc/Schema/Pset/TypePropertyBoundedValue.h"

#include "Format/Ifc/Schema/Pset/ValueExport.h"

namespace qev::ifc::def::pset {

TypePropertyBoundedValue::TypePropertyBoundedValue() = default;

TypePropertyBoundedValue::TypePropertyBoundedValue(std::string type, std::string unitText)
    : TypePropertySingleValue(std::move(type), std::move(unitText))
{
}

TypePropertyBoundedValue::~TypePropertyBoundedValue() = default;

std::string TypePropertyBoundedValue::sEntityName() const { return "IfcPropertyBoundedValue"; }

void TypePropertyBoundedValue::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element element = parent.addChild("TypePropertyBoundedValue");
    if (!lowerBound.empty() || !upperBound.empty()) {
        qev::xml::Element range = element.addChild("ValueRangeDef");
        range.addChild("LowerBoundValue").setAttribute("value", lowerBound);
        range.addChild("UpperBoundValue").setAttribute("value", upperBound);
    }
    exportDataType(element, valueType, unit);
}

} // namespace qev::ifc::def::pset
