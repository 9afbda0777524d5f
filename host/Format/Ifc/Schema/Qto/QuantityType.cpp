#include "Format/Ifc/Schema/Qto/QuantityType.h"

#include "Format/Ifc/Schema/Qto/QuantityTypeArea.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeCount.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeLength.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeTime.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeVolume.h"
#include "Format/Ifc/Schema/Qto/QuantityTypeWeight.h"

namespace qev::ifc::def::qto {

QuantityType::~QuantityType() = default;

std::unique_ptr<QuantityType> quantityTypeFromKind(std::string_view kind)
{
    if (kind == "Q_AREA")
        return std::make_unique<QuantityTypeArea>();
    if (kind == "Q_COUNT")
        return std::make_unique<QuantityTypeCount>();
    if (kind == "Q_LENGTH")
        return std::make_unique<QuantityTypeLength>();
    if (kind == "Q_TIME")
        return std::make_unique<QuantityTypeTime>();
    if (kind == "Q_VOLUME")
        return std::make_unique<QuantityTypeVolume>();
    if (kind == "Q_WEIGHT")
        return std::make_unique<QuantityTypeWeight>();
    return nullptr;
}

} // namespace qev::ifc::def::qto
