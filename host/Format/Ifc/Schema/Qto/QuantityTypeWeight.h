#pragma once

#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

/// A mass.
class HOSTIFCSCHEMA_EXPORT QuantityTypeWeight final : public QuantityTypeSimple
{
public:
    ~QuantityTypeWeight() override;

    [[nodiscard]] std::string sEntityName() const override;
    [[nodiscard]] std::string sKind() const override;
    [[nodiscard]] std::string sValueAttribute() const override;
    [[nodiscard]] std::string sMeasure() const override;
};

} // namespace qev::ifc::def::qto
