#pragma once

#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"

namespace qev::ifc::def::pset {

/// A property with a lower and an upper bound.
class HOSTIFCSCHEMA_EXPORT TypePropertyBoundedValue final : public TypePropertySingleValue
{
public:
    TypePropertyBoundedValue();
    explicit TypePropertyBoundedValue(std::string type, std::string unitText = {});
    ~TypePropertyBoundedValue() override;

    [[nodiscard]] std::string sEntityName() const override;
    void vExport(qev::xml::Element& parent, xml::ExtraExportInfo* info) const override;

    /// The bounds that the definition itself sets, as published; "?" or empty where it sets none.
    std::string lowerBound;
    std::string upperBound;
};

} // namespace qev::ifc::def::pset
