#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include "Core/Unit/QuantityPresentation.h"

namespace qev::ui {

std::string PropertyGridNumber::getShownText(double internalValue,
                                             unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return unit::NumberFormat::current().write(internalValue);
    return presentation->settings().writeToString(internalValue, presentation->unit());
}

std::string PropertyGridNumber::getEditorText(double internalValue,
                                              unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return unit::NumberFormat::current().write(internalValue);
    return presentation->settings().fullDigits(internalValue, presentation->unit());
}

std::optional<double> PropertyGridNumber::read(std::string_view text,
                                               unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return unit::NumberFormat::current().read(text);
    return presentation->parse(text);
}

std::string PropertyGridNumber::describeExpected(std::string_view text,
                                                 unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return unit::NumberFormat::current().describeExpected(text);
    return presentation->settings().describeExpected(text, presentation->unit());
}

std::string PropertyGridNumber::getUnit(unit::QuantityPresentationBase const* presentation)
{
    return presentation ? std::string(presentation->settings().displayUnit().symbol()) : std::string();
}

} // namespace qev::ui
