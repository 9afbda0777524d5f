#include "Format/Ifc/Schema/Qto/QuantityTypeWeight.h"

namespace qev::ifc::def::qto {

QuantityTypeWeight::~QuantityTypeWeight() = default;

std::string QuantityTypeWeight::sEntityName() const { return "IfcQuantityWeight"; }

std::string QuantityTypeWeight::sKind() const { return "Q_WEIGHT"; }

std::string QuantityTypeWeight::sValueAttribute() const { return "WeightValue"; }

std::string QuantityTypeWeight::sMeasure() const { return "IfcMassMeasure"; }

} // namespace qev::ifc::def::qto
