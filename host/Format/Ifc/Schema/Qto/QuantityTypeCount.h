#pragma once

#include "Format/Ifc/Schema/Qto/QuantityTypeSimple.h"

namespace qev::ifc::def::qto {

/// A number of things.
class HOSTIFCSCHEMA_EXPORT QuantityTypeCount final : public QuantityTypeSimple
{
public:
    ~QuantityTypeCount() override;

    [[nodiscard]] std::string sEntityName() const override;
    [[nodiscard]] std::string sKind() const override;
    [[nodiscard]] std::string sValueAttribute() const override;
    [[nodiscard]] std::string sMeasure() const override;
};

} // namespace qev::ifc::def::qto
