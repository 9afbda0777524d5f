#include "UI/FoundationClasses/Property/ValueCheck.h"

#include "UI/FoundationClasses/NumberTexts.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "UI/FoundationClasses/Quantity/FcQuantityCount.h"

#include <cmath>
#include <exception>

namespace qev::fc::ui {

namespace {

bool wouldTakeText(FcQuantityBase const& quantity, std::string const& text)
{
    bool const isCount = dynamic_cast<FcQuantityCount const*>(&quantity) != nullptr;
    return text.empty() || leadingNumberBelow(text, isCount ? FcQuantityCount::limit : HUGE_VAL).has_value();
}

} // namespace

bool wouldTake(PropertyInterface const& property, PropertyOrQuantityValue const& value)
{
    try {
        if (auto const* const single = dynamic_cast<FcPropertySingleValue const*>(&property))
            return single->wouldTake(value);
        if (auto const* const quantity = dynamic_cast<FcQuantityBase const*>(&property))
            return wouldTakeText(*quantity, value.getStringValue());
        return true;
    } catch (std::exception const&) {
        return false;
    }
}

} // namespace qev::fc::ui
