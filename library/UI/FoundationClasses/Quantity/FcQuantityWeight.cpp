#include "UI/FoundationClasses/Quantity/FcQuantityWeight.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityWeight.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityWeight;

FcQuantityWeight::FcQuantityWeight(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityWeight::~FcQuantityWeight() = default;

std::string FcQuantityWeight::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityWeight", getPropertySetName(),
                                             getName(), sixDecimalQuantityText<ModelQuantity>);
}

bool FcQuantityWeight::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value);
}

} // namespace qev::fc::ui
