#include "Format/Ifc/Schema/Qto/QuantityTypeArea.h"

namespace qev::ifc::def::qto {

QuantityTypeArea::~QuantityTypeArea() = default;

std::string QuantityTypeArea::sEntityName() const { return "IfcQuantityArea"; }

std::string QuantityTypeArea::sKind() const { return "Q_AREA"; }

std::string QuantityTypeArea::sValueAttribute() const { return "AreaValue"; }

std::string QuantityTypeArea::sMeasure() const { return "IfcAreaMeasure"; }

} // namespace qev::ifc::def::qto
