#include "Format/Ifc/Schema/Qto/QuantityTypeCount.h"

namespace qev::ifc::def::qto {

QuantityTypeCount::~QuantityTypeCount() = default;

std::string QuantityTypeCount::sEntityName() const { return "IfcQuantityCount"; }

std::string QuantityTypeCount::sKind() const { return "Q_COUNT"; }

std::string QuantityTypeCount::sValueAttribute() const { return "CountValue"; }

std::string QuantityTypeCount::sMeasure() const { return "IfcCountMeasure"; }

} // namespace qev::ifc::def::qto
