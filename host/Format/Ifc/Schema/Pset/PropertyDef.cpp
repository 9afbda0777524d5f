#include "Format/Ifc/Schema/Pset/PropertyDef.h"

#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/Xml/AliasExport.h"

namespace qev::ifc::def::pset {

PropertyDef::PropertyDef(PropertySetDef const& owner, std::string const& entryName,
                         std::unique_ptr<PropertyType>&& type)
    : Def(owner, entryName)
    , propertyType(std::move(type))
{
}

PropertyDef::~PropertyDef() = default;

xml::TypeBase const* PropertyDef::typeBase() const { return propertyType.get(); }

void PropertyDef::exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const
{
    qev::xml::Element element = parent.addChild("PropertyDef");
    element.addChild("Name", name);
    element.addChild("Definition", description);
    qev::xml::Element type = element.addChild("PropertyType");
    if (propertyType)
        propertyType->vExport(type, info);
    if (!nameAliases.empty())
        xml::exportAliases(nameAliases, element, "NameAliases", "NameAlias");
    if (!definitionAliases.empty())
        xml::exportAliases(definitionAliases, element, "DefinitionAliases", "DefinitionAlias");
}

} // namespace qev::ifc::def::pset
