#pragma once

#include "Format/Ifc/Schema/PsdDocument.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"

namespace qev::ifc::def {

/// Reads properties and their types.
class PsdTypeReader
{
public:
    PsdTypeReader(PsdDocument& document, pset::PropertySetDef& set);

    /// Reads the properties below \p list into \p properties.
    void readProperties(pugi::xml_node list, std::vector<std::unique_ptr<pset::PropertyDef>>& properties,
                        unsigned int depth = 0);

private:
    std::unique_ptr<pset::PropertyDef> readProperty(pugi::xml_node node, unsigned int depth);
    std::unique_ptr<pset::PropertyType> readType(pugi::xml_node property, unsigned int depth);
    std::unique_ptr<pset::PropertyType> readComplex(pugi::xml_node node, unsigned int depth);

    PsdDocument& m_document;
    pset::PropertySetDef& m_set;
};

/// Reads the aliases below \p list, elements \p itemName with a language each.
xml::Aliases readAliases(pugi::xml_node list, std::string_view itemName);

/// Reads the texts that all entries have: description and both lists of aliases.
void readEntryTexts(pugi::xml_node node, xml::Def& entry);

} // namespace qev::ifc::def
