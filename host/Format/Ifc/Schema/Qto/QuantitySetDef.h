#pragma once

#include "Format/Ifc/Schema/Qto/QuantityDef.h"

namespace qev::ifc::def::qto {

/// The definition of a quantity set.
class HOSTIFCSCHEMA_EXPORT QuantitySetDef final : public xml::SetDef
{
public:
    explicit QuantitySetDef(std::string const& setName);
    ~QuantitySetDef() override;

    qev::xml::Element exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;
    [[nodiscard]] char const* sKind() const override;
    [[nodiscard]] std::vector<xml::Def const*> entries() const override;

    /// The quantities in definition order.
    std::vector<std::unique_ptr<QuantityDef>> quantityDefs;
};

} // namespace qev::ifc::def::qto
