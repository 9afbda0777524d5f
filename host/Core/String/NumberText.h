#pragma once

#include "HostCoreExport.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::str {

/// The shortest decimal text that reads back as exactly \p value, with "." for the decimal sign,
/// whatever the locale. Very large and very small numbers have an exponent.
HOSTCORE_EXPORT std::string shortestText(double value);

/// \p value rounded to \p decimals digits behind the ".", without an exponent.
HOSTCORE_EXPORT std::string fixedText(double value, int decimals);

/// \p value rounded to \p digits significant digits, without zeros at the end.
HOSTCORE_EXPORT std::string significantText(double value, int digits);

/// Reads the whole of \p text as a number with "." for the decimal sign, whatever the locale.
///
/// A sign, an exponent, and a point without digits on one of its sides are fine; blanks, hexadecimal
/// digits, infinity and numbers outside of the range of `double` are not.
HOSTCORE_EXPORT std::optional<double> parseDouble(std::string_view text);

/// The decimal number \p number, such as `parseDouble` reads it, times ten to the power of \p exponent: the
/// same digits with the point elsewhere, so that nothing is rounded. Nothing when \p number is no such text.
HOSTCORE_EXPORT std::optional<std::string> timesPowerOfTen(std::string_view number, int exponent);

} // namespace qev::str
