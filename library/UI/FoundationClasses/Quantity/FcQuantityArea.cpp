#include "UI/FoundationClasses/Quantity/FcQuantityArea.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityArea.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityArea;

FcQuantityArea::FcQuantityArea(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityArea::~FcQuantityArea() = default;

std::string FcQuantityArea::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityArea", getPropertySetName(), getName(),
                                             sixDecimalQuantityText<ModelQuantity>);
}

bool FcQuantityArea::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value);
}

} // namespace qev::fc::ui
