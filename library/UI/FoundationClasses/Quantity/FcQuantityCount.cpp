#include "UI/FoundationClasses/Quantity/FcQuantityCount.h"

#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"
#include "UI/FoundationClasses/Quantity/QuantityAccess.h"

namespace qev::fc::ui {

using ModelQuantity = resource::quantity::FcQuantityCount;

namespace {

std::string textOf(ModelQuantity const& quantity) { return std::to_string(quantity.CountValue.get()); }

} // namespace

FcQuantityCount::FcQuantityCount(ifc::def::qto::QuantityDef const& definition, QuantitySet& set)
    : FcQuantityBase(definition, set)
{
}

FcQuantityCount::~FcQuantityCount() = default;

std::string FcQuantityCount::getValue() const
{
    return commonQuantityText<ModelQuantity>(getObjects(), "FcQuantityCount", getPropertySetName(), getName(),
                                             textOf);
}

bool FcQuantityCount::setNewValue(std::string const& value, core::productextension::FcElementQuantity& set)
{
    return storeQuantity<ModelQuantity>(set, getName(), value, limit);
}

} // namespace qev::fc::ui
