#include "FoundationClasses/Resource/Quantity/FcQuantityCount.h"

#include "Core/Unit/QuantityPresentation.h"

#include <cmath>

namespace qev::fc::resource::quantity {

double FcQuantityCount::getValue() const { return static_cast<double>(CountValue.get()); }

void FcQuantityCount::setValue(double value)
{
    // The first whole number beyond 64 bits.
    constexpr double limit = 9223372036854775808.0;
    if (std::abs(value) < limit)
        CountValue = static_cast<std::int64_t>(value);
}

std::unique_ptr<unit::QuantityPresentationBase> FcQuantityCount::createQuantityPresentation() const
{
    return presentationOf("CountMeasure");
}

} // namespace qev::fc::resource::quantity
