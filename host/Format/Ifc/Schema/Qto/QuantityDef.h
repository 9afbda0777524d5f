#pragma once

#include "Format/Ifc/Schema/Qto/QuantityType.h"
#include "Format/Ifc/Schema/Xml/Def.h"

namespace qev::ifc::def::qto {

class QuantitySetDef;

/// One quantity of a set.
class HOSTIFCSCHEMA_EXPORT QuantityDef final : public xml::Def
{
public:
    QuantityDef(QuantitySetDef const& owner, std::string const& entryName,
                std::unique_ptr<QuantityType>&& type);
    ~QuantityDef() override;

    [[nodiscard]] xml::TypeBase const* typeBase() const override;
    /// Appends the quantity to \p parent in the published form; \p info may be null.
    void exportDef(qev::xml::Element& parent, xml::ExtraExportInfo* info) const;

    std::unique_ptr<QuantityType> quantityType;
};

} // namespace qev::ifc::def::qto
