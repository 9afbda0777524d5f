#pragma once

#include "Format/Ifc/Schema/Xml/Aliases.h"

namespace qev::ifc::def::pset {

/// What a published definition says about one value of an enumeration.
struct EnumerationItem
{
    std::string description;
    xml::Aliases definitionAliases;
};

/// The name of a value in other languages.
struct EnumerationItemAliases
{
    std::string value;
    xml::Aliases nameAliases;
};

} // namespace qev::ifc::def::pset
