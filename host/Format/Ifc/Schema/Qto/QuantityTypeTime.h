#pragma once

#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

/// A span of time.
class HOSTIFCSCHEMA_EXPORT QuantityTypeTime final : public QuantityTypeSimple
{
public:
    ~QuantityTypeTime() override;

    [[nodiscard]] std::string sEntityName() const override;
    [[nodiscard]] std::string sKind() const override;
    [[nodiscard]] std::string sValueAttribute() const override;
    [[nodiscard]] std::string sMeasure() const override;
};

} // namespace qev::ifc::def::qto
