#include "FoundationClasses/Core/ProductExtension/FcSite.h"

#include <array>
#include <charconv>
#include <cmath>

namespace qev::fc::core::productextension {

namespace {

/// Six decimals of a degree are about ten centimetres on the ground.
constexpr int decimals = 6;

std::string textOf(double number)
{
    std::array<char, 32> text{};
    auto const result =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return {text.data(), result.ptr};
}

} // namespace

std::optional<std::string> FcSite::getMapURL() const
{
    if (!RefLatitude.get() || !RefLongitude.get())
        return std::nullopt;
    double const latitude = (*RefLatitude)->angleMeasure();
    double const longitude = (*RefLongitude)->angleMeasure();
    if (std::abs(latitude) > 90.0 || std::abs(longitude) > 180.0)
        return std::nullopt;
    std::string const latitudeText = textOf(latitude);
    std::string const longitudeText = textOf(longitude);
    return "https://www.openstreetmap.org/?mlat=" + latitudeText + "&mlon=" + longitudeText + "#map=18/" +
           latitudeText + "/" + longitudeText;
}

} // namespace qev::fc::core::productextension
