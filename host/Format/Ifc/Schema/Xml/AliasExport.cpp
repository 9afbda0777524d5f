#include "Format/Ifc/Schema/Xml/AliasExport.h"

namespace qev::ifc::def::xml {

void exportAliases(Aliases const& aliases, qev::xml::Element& parent, std::string_view listName,
                   std::string_view itemName)
{
    qev::xml::Element list = parent.addChild(listName);
    for (auto const& [locale, text] : aliases.texts())
        list.addChild(itemName, text).setAttribute("lang", locale.code());
}

} // namespace qev::ifc::def::xml
