#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/Xml/XmlSetErrors.h"

namespace qev::ifc::def::xml {

/// The type of an entry of a set.
class HOSTIFCSCHEMA_EXPORT TypeBase
{
public:
    TypeBase();
    virtual ~TypeBase();
    TypeBase(TypeBase const&) = delete;
    TypeBase& operator=(TypeBase const&) = delete;

    /// The class of a property or quantity of this type, "IfcPropertySingleValue".
    [[nodiscard]] virtual std::string sEntityName() const = 0;
    /// Adds to \p errors what \p schema does not know; \returns true when nothing was added.
    virtual bool checkForErrors(schema::Schema const& schema, XmlSetErrors& errors) const = 0;
};

} // namespace qev::ifc::def::xml
