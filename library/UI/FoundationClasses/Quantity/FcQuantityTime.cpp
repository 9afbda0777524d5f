#include "UI/FoundationClasses/Quantity/FcQuantityTime.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityTime.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityTime;

FcQuantityTime::FcQuantityTime(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityTime::~FcQuantityTime() = default;

std::string FcQuantityTime::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityTime", getPropertySetName(), getName(),
                                             sixDecimalQuantityText<ModelQuantity>);
}

bool FcQuantityTime::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value);
}

} // namespace qev::fc::ui
