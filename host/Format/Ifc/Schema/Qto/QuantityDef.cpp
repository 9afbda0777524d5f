#include "Format/Ifc/Schema/Qto/QuantityDef.h"

#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"
#include "Format/Ifc/Schema/Xml/AliasExport.h"

namespace qev::ifc::def::qto {

QuantityDef::QuantityDef(QuantitySetDef const& owner, std::string const& entryName,
                         std::unique_ptr<QuantityType>&& type)
    : Def(owner, entryName)
    , quantityType(std::move(type))
{
}

QuantityDef::~QuantityDef() = default;

xml::TypeBase const* QuantityDef::typeBase() const { return quantityType.get(); }

void QuantityDef::exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* /*info*/) const
{
    qev::xml::Element element = parent.addChild("QtoDef");
    element.addChild("Name", name);
    element.addChild("Definition", description);
    if (quantityType)
        element.addChild("QtoType", quantityType->sKind());
    if (!nameAliases.empty())
        xml::exportAliases(nameAliases, element, "NameAliases", "NameAlias");
    if (!definitionAliases.empty())
        xml::exportAliases(definitionAliases, element, "DefinitionAliases", "DefinitionAlias");
}

} // namespace qev::ifc::def::qto
