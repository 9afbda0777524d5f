#include "Format/Ifc/Schema/Qto/QuantitySetDef.h"

#include "Format/Ifc/Schema/Xml/AliasExport.h"

namespace qev::ifc::def::qto {

QuantitySetDef::QuantitySetDef(std::string const& setName)
    : SetDef(setName)
{
}

QuantitySetDef::~QuantitySetDef() = default;

qev::xml::Element QuantitySetDef::exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const
{
    qev::xml::Element element = SetDef::exportDef(parent, info);
    qev::xml::Element quantities = element.addChild("QtoDefs");
    for (auto const& quantity : quantityDefs)
        quantity->exportDef(quantities, info);
    if (!definitionAliases.empty())
        xml::exportAliases(definitionAliases, element, "QtoDefinitionAliases", "QtoDefinitionAlias");
    return element;
}

char const* QuantitySetDef::sKind() const { return "QtoSetDef"; }

std::vector<xml::Def const*> QuantitySetDef::entries() const
{
    std::vector<xml::Def const*> result;
    for (auto const& quantity : quantityDefs)
        result.push_back(quantity.get());
    return result;
}

} // namespace qev::ifc::def::qto
