#pragma once

#include "Format/Ifc/Schema/Pset/PropertyDef.h"

namespace qev::ifc::def::pset {

/// The definition of a property set.
class HOSTIFCSCHEMA_EXPORT PropertySetDef final : public xml::SetDef
{
public:
    explicit PropertySetDef(std::string const& setName);
    ~PropertySetDef() override;

    qev::xml::Element exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;
    [[nodiscard]] char const* sKind() const override;
    [[nodiscard]] std::vector<xml::Def const*> entries() const override;

    /// The properties in definition order.
    std::vector<std::unique_ptr<PropertyDef>> propertyDefs;
};

} // namespace qev::ifc::def::pset
