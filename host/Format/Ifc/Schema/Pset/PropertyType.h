#pragma once

#include "Format/Ifc/Schema/Xml/Element.h"
#include "Format/Ifc/Schema/Xml/ExtraExportInfo.h"
#include "Format/Ifc/Schema/Xml/TypeBase.h"

namespace qev::ifc::def::pset {

/// The type of a property.
class HOSTIFCSCHEMA_EXPORT PropertyType : public xml::TypeBase
{
public:
    ~PropertyType() override;

    /// Appends the type to \p parent in the published form; \p info may be null.
    virtual void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const = 0;
};

} // namespace qev::ifc::def::pset
