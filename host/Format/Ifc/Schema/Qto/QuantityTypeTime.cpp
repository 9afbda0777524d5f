#include "Format/Ifc/Schema/Qto/QuantityTypeTime.h"

namespace qev::ifc::def::qto {

QuantityTypeTime::~QuantityTypeTime() = default;

std::string QuantityTypeTime::sEntityName() const { return "IfcQuantityTime"; }

std::string QuantityTypeTime::sKind() const { return "Q_TIME"; }

std::string QuantityTypeTime::sValueAttribute() const { return "TimeValue"; }

std::string QuantityTypeTime::sMeasure() const { return "IfcTimeMeasure"; }

} // namespace qev::ifc::def::qto
