#include "Format/Ifc/Schema/Pset/PropertySetDef.h"

#include "Format/Ifc/Schema/Xml/AliasExport.h"

namespace qev::ifc::def::pset {

PropertySetDef::PropertySetDef(std::string const& setName)
    : SetDef(setName)
{
}

PropertySetDef::~PropertySetDef() = default;

qev::xml::Element PropertySetDef::exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const
{
    qev::xml::Element element = SetDef::exportDef(parent, info);
    qev::xml::Element properties = element.addChild("PropertyDefs");
    for (auto const& property : propertyDefs)
        property->exportDef(properties, info);
    if (!definitionAliases.empty())
        xml::exportAliases(definitionAliases, element, "PsetDefinitionAliases", "PsetDefinitionAlias");
    return element;
}

char const* PropertySetDef::sKind() const { return "PropertySetDef"; }

std::vector<xml::Def const*> PropertySetDef::entries() const
{
    std::vector<xml::Def const*> result;
    for (auto const& property : propertyDefs)
        result.push_back(property.get());
    return result;
}

} // namespace qev::ifc::def::pset
