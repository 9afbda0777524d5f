#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include "Core/String/Ascii.h"
#include "Core/Unit/QuantityPresentation.h"

#include <array>
#include <charconv>
#include <cmath>

namespace qev::ui {

namespace {

std::string shortestText(double value)
{
    std::array<char, 32> buffer{};
    auto const result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0);
    return {buffer.data(), result.ptr};
}

/// Reads a plain number with a point or a comma as decimal sign.
std::optional<double> readPlain(std::string_view text)
{
    std::string plain(str::trimmed(text, " \t"));
    if (auto const comma = plain.find(','); comma != std::string::npos)
        plain[comma] = '.';
    if (plain.starts_with('+') && !plain.starts_with("+-"))
        plain.erase(0, 1);
    double value = 0;
    auto const* const end = plain.data() + plain.size();
    auto const result = std::from_chars(plain.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value + 0.0;
}

} // namespace

std::string PropertyGridNumber::getShownText(double internalValue,
                                             unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return shortestText(internalValue);
    return presentation->settings().writeToString(internalValue, presentation->unit());
}

std::string PropertyGridNumber::getEditorText(double internalValue,
                                              unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return shortestText(internalValue);
    return presentation->settings().fullDigits(internalValue, presentation->unit());
}

std::optional<double> PropertyGridNumber::read(std::string_view text,
                                               unit::QuantityPresentationBase const* presentation)
{
    if (!presentation)
        return readPlain(text);
    return presentation->parse(text);
}

std::string PropertyGridNumber::getUnit(unit::QuantityPresentationBase const* presentation)
{
    return presentation ? std::string(presentation->settings().displayUnit().symbol()) : std::string();
}

} // namespace qev::ui
