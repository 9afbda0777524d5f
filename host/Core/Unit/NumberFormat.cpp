#include "Core/Unit/NumberFormat.h"

#include "Core/Localization/Localize.h"
#include "Core/String/Ascii.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/QppBase.h"

#include <algorithm>

namespace qev::unit {

namespace {

bool isSeparator(char character) { return character == '.' || character == ','; }

bool groupsThousands(std::string_view wholePart, char separator)
{
    auto start = wholePart.find(separator);
    if (start == 0 || start == std::string_view::npos || start > 3)
        return false;
    while (start != std::string_view::npos) {
        auto const next = wholePart.find(separator, start + 1);
        auto const end = next == std::string_view::npos ? wholePart.size() : next;
        if (end - start - 1 != 3)
            return false;
        start = next;
    }
    return true;
}

std::string withoutCharacter(std::string_view text, char character)
{
    std::string result(text);
    std::erase(result, character);
    return result;
}

/// The digits of \p mantissa with "." alone for the decimal sign and without groups.
std::optional<std::string> plainMantissa(std::string_view mantissa)
{
    auto const last = mantissa.find_last_of(".,");
    if (last == std::string_view::npos)
        return std::string(mantissa);
    char const sign = mantissa[last];
    char const other = sign == '.' ? ',' : '.';
    std::string_view const whole = mantissa.substr(0, last);
    bool const repeats = whole.find(sign) != std::string_view::npos;
    bool const mixed = whole.find(other) != std::string_view::npos;
    if (repeats)
        return !mixed && groupsThousands(mantissa, sign) ? std::optional(withoutCharacter(mantissa, sign))
                                                         : std::nullopt;
    if (mixed && !groupsThousands(whole, other))
        return std::nullopt;
    return withoutCharacter(whole, other) + "." + std::string(mantissa.substr(last + 1));
}

} // namespace

NumberFormat const& NumberFormat::current() { return QppBase::registration().preferences().numberFormat(); }

std::string NumberFormat::write(double number) const
{
    return withDecimalSign(str::shortestText(number + 0.0));
}

std::string NumberFormat::withDecimalSign(std::string text) const
{
    std::replace(text.begin(), text.end(), '.', decimalSign);
    return text;
}

std::optional<double> NumberFormat::read(std::string_view text) const
{
    auto const digits = plainDigits(str::trimmed(text, " \t"));
    auto const number = digits ? str::parseDouble(*digits) : std::nullopt;
    return number ? std::optional(*number + 0.0) : std::nullopt;
}

std::optional<std::string> NumberFormat::plainDigits(std::string_view text) const
{
    std::string_view const sign = text.substr(0, text.starts_with('-') || text.starts_with('+') ? 1 : 0);
    text.remove_prefix(sign.size());
    if (isAmbiguous(text))
        return std::nullopt;
    auto const exponent = std::min(text.find_first_of("eE"), text.size());
    auto const mantissa = plainMantissa(text.substr(0, exponent));
    if (!mantissa)
        return std::nullopt;
    std::string number = std::string(sign) + *mantissa + std::string(text.substr(exponent));
    return str::parseDouble(number) ? std::optional(std::move(number)) : std::nullopt;
}

bool NumberFormat::isAmbiguous(std::string_view text) const
{
    auto const separator = text.find_first_of(".,");
    return separator != std::string_view::npos && text[separator] != decimalSign && text[0] != '0' &&
           text.find_first_not_of("0123456789", separator + 1) == std::string_view::npos &&
           groupsThousands(text, text[separator]);
}

std::string NumberFormat::describeExpected(std::string_view text) const
{
    text = str::trimmed(text, " \t");
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    if (!isAmbiguous(text))
        return localize("Expected_Number", "Units", {withDecimalSign("2.5")});
    std::string withSign(text);
    std::string whole(text);
    std::replace_if(withSign.begin(), withSign.end(), isSeparator, decimalSign);
    std::erase_if(whole, isSeparator);
    return localize("Expected_Unambiguous", "Units", {std::string(text), withSign, whole});
}

} // namespace qev::unit
