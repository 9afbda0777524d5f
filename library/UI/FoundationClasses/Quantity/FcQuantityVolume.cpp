#include "UI/FoundationClasses/Quantity/FcQuantityVolume.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityVolume.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityVolume;

FcQuantityVolume::FcQuantityVolume(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityVolume::~FcQuantityVolume() = default;

std::string FcQuantityVolume::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityVolume", getPropertySetName(),
                                             getName(), sixDecimalQuantityText<ModelQuantity>);
}

bool FcQuantityVolume::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value);
}

} // namespace qev::fc::ui
