#include "UI/FoundationClasses/Controllers/ValueCell.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"

namespace qev::fc::ui {

using resource::measure::FcValue;
using resource::property::FcProperty;

std::unique_ptr<unit::QuantityPresentationBase>
presentationOfValue(FcValue const& value, FcProperty const* property, std::string const& setName)
{
    if (value.isEmpty())
        return nullptr;
    if (property)
        return property->createQuantityPresentationFor(value, setName);
    auto presentation = value.createQuantityPresentation();
    if (presentation)
        presentation->setValue(value.valueAsDoubleGet().value_or(0.0));
    return presentation;
}

std::string cellText(FcValue const& value, unit::QuantityPresentationBase const* presentation)
{
    return presentation ? presentation->text() : value.getAsString(false).value_or("");
}

std::string cellEditText(FcValue const& value, unit::QuantityPresentationBase const* presentation)
{
    return presentation ? presentation->fullDigits() : value.getAsString(false).value_or("");
}

bool setValueFromCell(FcValue& value, unit::QuantityPresentationBase const* presentation,
                      std::string const& text)
{
    if (!presentation)
        return value.setValueOnTypeFromString(text);
    auto const number = presentation->settings().dInternal(text, presentation->unit());
    // A negative zero is typed by nobody who means it.
    return value.setDoubleValue(number == 0.0 ? 0.0 : number);
}

} // namespace qev::fc::ui
