#include "Format/Ifc/Schema/Qto/QuantityTypeVolume.h"

namespace qev::ifc::def::qto {

QuantityTypeVolume::~QuantityTypeVolume() = default;

std::string QuantityTypeVolume::sEntityName() const { return "IfcQuantityVolume"; }

std::string QuantityTypeVolume::sKind() const { return "Q_VOLUME"; }

std::string QuantityTypeVolume::sValueAttribute() const { return "VolumeValue"; }

std::string QuantityTypeVolume::sMeasure() const { return "IfcVolumeMeasure"; }

} // namespace qev::ifc::def::qto
