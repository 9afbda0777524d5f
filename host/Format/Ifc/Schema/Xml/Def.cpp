#include "Format/Ifc/Schema/Xml/Def.h"

namespace qev::ifc::def::xml {

Def::Def(SetDef const& owner, std::string const& entryName)
    : DefBase(entryName)
    , m_set(owner)
{
}

Def::~Def() = default;

std::string Def::getConcept() const { return m_set.conceptPrefix + name; }

bool Def::checkForErrors(schema::Schema const& schema, XmlSetErrors& errors) const
{
    TypeBase const* const type = typeBase();
    return !type || type->checkForErrors(schema, errors);
}

} // namespace qev::ifc::def::xml
