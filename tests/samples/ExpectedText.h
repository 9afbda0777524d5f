#pragma once

#include "reference-reader/ReferenceProperty.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qev::test::samples {

/// What a row should say: texts that stand there as they are, and numbers in SI units, whose spelling is
/// free.
class ExpectedText
{
public:
    ExpectedText& add(std::string_view text);
    ExpectedText& add(double number);
    /// A value of the file: a number in SI units, a truth value as a word, else its text.
    ExpectedText& add(reference::ReferenceValue const& value);
    ExpectedText& add(ExpectedText const& other);

    /// Compares a text piece by piece. A number may be rounded to six decimals.
    [[nodiscard]] bool matches(std::string_view shown) const;
    /// Compares with another text: nothing where the two differ by less than the numbers are rounded.
    [[nodiscard]] std::optional<bool> isSame(ExpectedText const& other) const;
    [[nodiscard]] std::string describe() const;
    [[nodiscard]] bool isEmpty() const;

private:
    std::vector<std::variant<std::string, double>> m_pieces;
};

/// Equal within the rounding of a conversion of units.
[[nodiscard]] bool isSameNumber(double a, double b);

/// The text that a property or a quantity should show: empty where it has no value.
[[nodiscard]] ExpectedText expectedText(reference::ReferenceProperty const& property);

} // namespace qev::test::samples
