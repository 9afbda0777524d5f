#pragma once

#include <optional>
#include <string>

namespace qev::fc::ui {

/// \p number with six decimals and a point, as `std::to_string` writes it, whatever the locale of the
/// process.
[[nodiscard]] std::string sixDecimalText(double number);

/// The number at the start of \p text, as `std::stod` reads it, whatever the locale of the process:
/// blanks in front and anything behind the number are passed over.
///
/// \throws std::invalid_argument when there is no number, std::out_of_range for one that `double` cannot
/// hold.
[[nodiscard]] double leadingNumber(std::string const& text);

/// The number at the start of \p text when it is finite and its absolute value below \p limit; nothing for
/// other texts.
///
/// \throws std::out_of_range for a number that `double` cannot hold.
[[nodiscard]] std::optional<double> leadingNumberBelow(std::string const& text, double limit);

} // namespace qev::fc::ui
