#include "Format/Ifc/Schema/Qto/QuantityTypeLength.h"

namespace qev::ifc::def::qto {

QuantityTypeLength::~QuantityTypeLength() = default;

std::string QuantityTypeLength::sEntityName() const { return "IfcQuantityLength"; }

std::string QuantityTypeLength::sKind() const { return "Q_LENGTH"; }

std::string QuantityTypeLength::sValueAttribute() const { return "LengthValue"; }

std::string QuantityTypeLength::sMeasure() const { return "IfcLengthMeasure"; }

} // namespace qev::ifc::def::qto
