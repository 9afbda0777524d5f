#pragma once

#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

/// A length.
class HOSTIFCSCHEMA_EXPORT QuantityTypeLength final : public QuantityTypeSimple
{
public:
    ~QuantityTypeLength() override;

    [[nodiscard]] std::string sEntityName() const override;
    [[nodiscard]] std::string sKind() const override;
    [[nodiscard]] std::string sValueAttribute() const override;
    [[nodiscard]] std::string sMeasure() const override;
};

} // namespace qev::ifc::def::qto
