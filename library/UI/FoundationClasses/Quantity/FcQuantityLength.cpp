#include "UI/FoundationClasses/Quantity/FcQuantityLength.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityLength.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityLength;

FcQuantityLength::FcQuantityLength(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityLength::~FcQuantityLength() = default;

std::string FcQuantityLength::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityLength", getPropertySetName(),
                                             getName(), sixDecimalQuantityText<ModelQuantity>);
}

bool FcQuantityLength::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value);
}

} // namespace qev::fc::ui
