#include "Format/Ifc/Schema/Pset/ValueExport.h"

namespace qev::ifc::def::pset {

void exportDataType(qev::xml::Element& parent, std::string const& type, std::string const& unit)
{
    parent.addChild("DataType").setAttribute("type", type);
    if (!unit.empty())
        parent.addChild("UnitType").setAttribute("type", unit);
}

void exportValues(qev::xml::Element& parent, std::vector<std::string> const& values)
{
    if (values.empty())
        return;
    qev::xml::Element items = parent.addChild("Values");
    for (std::string const& value : values)
        items.addChild("ValueItem", value);
}

} // namespace qev::ifc::def::pset
