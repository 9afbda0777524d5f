#include "UI/FoundationClasses/Quantity/FcQuantityFactory.h"

#include "Format/Ifc/Schema/Qto/QuantityDef.h"
#include "UI/FoundationClasses/Quantity/FcQuantityArea.h"
#include "UI/FoundationClasses/Quantity/FcQuantityCount.h"
#include "UI/FoundationClasses/Quantity/FcQuantityLength.h"
#include "UI/FoundationClasses/Quantity/FcQuantityTime.h"
#include "UI/FoundationClasses/Quantity/FcQuantityVolume.h"
#include "UI/FoundationClasses/Quantity/FcQuantityWeight.h"

#include <stdexcept>

namespace qev::fc::ui {

std::unique_ptr<PropertyInterface> FcQuantityFactory::create(ifc::def::qto::QuantityDef const& definition,
                                                             QuantitySet& set)
{
    auto const entityName = definition.quantityType->sEntityName();
    if (entityName == "IfcQuantityArea")
        return std::make_unique<FcQuantityArea>(definition, set);
    if (entityName == "IfcQuantityCount")
        return std::make_unique<FcQuantityCount>(definition, set);
    if (entityName == "IfcQuantityLength")
        return std::make_unique<FcQuantityLength>(definition, set);
    if (entityName == "IfcQuantityTime")
        return std::make_unique<FcQuantityTime>(definition, set);
    if (entityName == "IfcQuantityVolume")
        return std::make_unique<FcQuantityVolume>(definition, set);
    if (entityName == "IfcQuantityWeight")
        return std::make_unique<FcQuantityWeight>(definition, set);
    throw std::runtime_error("Not supported!");
}

} // namespace qev::fc::ui
