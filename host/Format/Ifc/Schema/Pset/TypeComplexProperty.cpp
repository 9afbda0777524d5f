#include "Format/Ifc/Schema/Pset/TypeComplexProperty.h"

#include "Format/Ifc/Schema/Pset/PropertyDef.h"

namespace qev::ifc::def::pset {

TypeComplexProperty::TypeComplexProperty(std::string usage)
    : usageName(std::move(usage))
{
}

TypeComplexProperty::~TypeComplexProperty() = default;

std::string TypeComplexProperty::sEntityName() const { return "IfcComplexProperty"; }

bool TypeComplexProperty::checkForErrors(schema::Schema const& schema, xml::XmlSetErrors& errors) const
{
    bool isValid = true;
    for (auto const& member : members)
        isValid = member->checkForErrors(schema, errors) && isValid;
    return isValid;
}

void TypeComplexProperty::vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const
{
    qev::xml::Element element = parent.addChild("TypeComplexProperty");
    element.setAttribute("name", usageName);
    for (auto const& member : members)
        member->exportDef(element, info);
}

} // namespace qev::ifc::def::pset
