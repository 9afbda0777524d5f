#pragma once

#include "Format/Ifc/Schema/Xml/Aliases.h"

namespace qev::ifc::def::xml {

/// The common part of a definition.
class HOSTIFCSCHEMA_EXPORT DefBase
{
public:
    std::string name;
    /// Empty unless a published definition has been read: the tables of the program hold no prose.
    std::string description;
    /// The description in other languages.
    Aliases definitionAliases;

protected:
    explicit DefBase(std::string_view definitionName);
    ~DefBase();
};

} // namespace qev::ifc::def::xml
