#pragma once

#include "Format/Ifc/Schema/Pset/PropertyType.h"
#include "Format/Ifc/Schema/Xml/Def.h"

namespace qev::ifc::def::pset {

class PropertySetDef;

/// One property of a set.
class HOSTIFCSCHEMA_EXPORT PropertyDef final : public xml::Def
{
public:
    PropertyDef(PropertySetDef const& owner, std::string const& entryName,
                std::unique_ptr<PropertyType>&& type);
    ~PropertyDef() override;

    [[nodiscard]] xml::TypeBase const* typeBase() const override;
    /// Appends the property to \p parent in the published form; \p info may be null.
    void exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const;

    /// May be null: nothing is known of the value then.
    std::unique_ptr<PropertyType> propertyType;
};

} // namespace qev::ifc::def::pset
