#pragma once

#include "Format/Ifc/Schema/Xml/TypeBase.h"

#include <memory>

namespace qev::ifc::def::qto {

/// The type of a quantity.
class HOSTIFCSCHEMA_EXPORT QuantityType : public xml::TypeBase
{
public:
    ~QuantityType() override;

    /// What published definitions call the type, "Q_LENGTH".
    [[nodiscard]] virtual std::string sKind() const = 0;
    /// The attribute of the quantity that holds the value, "LengthValue".
    [[nodiscard]] virtual std::string sValueAttribute() const = 0;
    /// The type of the value, "IfcLengthMeasure".
    [[nodiscard]] virtual std::string sMeasure() const = 0;
};

/// The type that published definitions call \p kind; null for an unknown one.
HOSTIFCSCHEMA_EXPORT std::unique_ptr<QuantityType> quantityTypeFromKind(std::string_view kind);

} // namespace qev::ifc::def::qto
