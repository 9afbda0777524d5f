#include "UI/FoundationClasses/PropertyOrQuantityValue.h"

#include "Core/Assert/Assert.h"

#include <utility>

namespace qev::fc::ui {

PropertyOrQuantityValue PropertyOrQuantityValue::fromText(std::string text)
{
    return {.stringValue = std::move(text), .quantityValue = std::nullopt};
}

PropertyOrQuantityValue PropertyOrQuantityValue::fromNumber(double number)
{
    return {.stringValue = std::nullopt, .quantityValue = number};
}

std::string PropertyOrQuantityValue::getStringValue() const
{
    if (stringValue)
        return *stringValue;
    assert::report("Not a string value.", "qev::fc::ui::PropertyOrQuantityValue::getStringValue",
                   "Ui/FoundationClasses/PropertyOrQuantityValue");
    return {};
}

} // namespace qev::fc::ui
