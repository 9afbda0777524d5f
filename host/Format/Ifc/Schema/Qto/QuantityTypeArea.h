#pragma once

#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

/// An area.
class HOSTIFCSCHEMA_EXPORT QuantityTypeArea final : public QuantityTypeSimple
{
public:
    ~QuantityTypeArea() override;

    [[nodiscard]] std::string sEntityName() const override;
    [[nodiscard]] std::string sKind() const override;
    [[nodiscard]] std::string sValueAttribute() const override;
    [[nodiscard]] std::string sMeasure() const override;
};

} // namespace qev::ifc::def::qto
