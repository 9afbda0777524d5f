#pragma once

#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "Format/Ifc/Schema/Xml/TypeBase.h"

namespace qev::ifc::def::xml {

/// One entry of a set.
class HOSTIFCSCHEMA_EXPORT Def : public DefBase
{
public:
    virtual ~Def();
    Def(Def const&) = delete;
    Def& operator=(Def const&) = delete;

    /// The key under which the texts of the entry are localised: the set's `conceptPrefix` and the name.
    [[nodiscard]] std::string getConcept() const;
    /// The set that the entry belongs to, which outlives it.
    [[nodiscard]] SetDef const& set() const { return m_set; }
    /// The type; null when the entry has none.
    [[nodiscard]] virtual TypeBase const* typeBase() const = 0;
    /// \see TypeBase::checkForErrors
    bool checkForErrors(schema::Schema const& schema, XmlSetErrors& errors) const;

    /// The name in other languages.
    Aliases nameAliases;

protected:
    Def(SetDef const& owner, std::string const& entryName);

private:
    SetDef const& m_set;
};

} // namespace qev::ifc::def::xml
