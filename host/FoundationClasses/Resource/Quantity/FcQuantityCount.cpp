#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"

#include "Core/Unit/QuantityPresentation.h"

#include <cmath>

namespace qev::fc::resource::quantity {

double FcQuantityCount::getValue() const { return static_cast<double>(CountValue.get()); }

void FcQuantityCount::setValue(double value)
{
    constexpr double limit = 9.0e18;
    if (std::abs(value) < limit)
        CountValue = static_cast<std::int64_t>(value);
}

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityCount::createQuantityPresentation() const
{
    return presentationOf("CountMeasure");
}

} // namespace qev::fc::resource::quantity
