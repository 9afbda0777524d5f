#pragma once

#include "Core/Unit/NumberFormat.h"
#include "Core/Unit/QuantityBase.h"
#include "HostCoreExport.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::unit {

/// How the values of a quantity are written for a user, and how what the user types is read.
///
/// A value of its own: copies do not know of each other. The operations take and give values of the
/// unit handed to them, the internal unit of whoever calls; the user sees the display unit.
class HOSTCORE_EXPORT QppSettings
{
public:
    enum class Style
    {
        Decimal,
        /// Feet, and inches with sixteenths: 8' 2 1/2". For lengths.
        FeetAndInches,
        /// Degrees, minutes and seconds: 48° 12' 30.5". For angles; the decimals are those of the seconds.
        DegreesMinutesSeconds
    };

    static constexpr int maximumDecimals = 15;

    /// Settings with the display unit and the decimals that people in building expect:
    /// lengths in metres, areas in square metres, angles in degrees, temperatures in degrees Celsius,
    /// moduli of elasticity in N/mm², all else in the SI unit. Zeros at the end are not written.
    explicit QppSettings(QuantityBase const& quantity);

    [[nodiscard]] QuantityBase const& quantity() const { return *m_quantity; }

    [[nodiscard]] UnitBase const& displayUnit() const { return *m_displayUnit; }
    /// A unit of another quantity is refused: the settings stay as they are. \returns whether it was taken.
    bool setDisplayUnit(UnitBase const& unit);

    [[nodiscard]] Style style() const { return m_style; }
    void setStyle(Style style) { m_style = style; }

    [[nodiscard]] int decimals() const { return m_decimals; }
    /// A number below 0 counts as 0, one above 15 as 15.
    void setDecimals(int decimals);

    [[nodiscard]] bool trimsZeros() const { return m_trimsZeros; }
    void setTrimsZeros(bool trims) { m_trimsZeros = trims; }

    [[nodiscard]] bool showsUnit() const { return m_showsUnit; }
    void setShowsUnit(bool shows) { m_showsUnit = shows; }

    [[nodiscard]] NumberFormat const& numberFormat() const { return m_numberFormat; }
    void setNumberFormat(NumberFormat const& format) { m_numberFormat = format; }

    /// The text of \p value, which is of \p unit: the number in the display unit, rounded to the decimals, a
    /// blank, and the unit's symbol. Plain numbers have no symbol, and the signs of angles no blank.
    ///
    /// Zero never has a sign. A number that only rounding would turn into zero shows three of its digits.
    /// A \p unit of another quantity is written as it is.
    [[nodiscard]] std::string writeToString(double value, UnitBase const& unit) const;

    /// The number of `writeToString` alone, without the unit.
    [[nodiscard]] std::string writeNumberToString(double value, UnitBase const& unit) const;

    /// What a user typed, as a value of \p unit; nothing when it is not understood.
    ///
    /// Understood are: a number in the display unit; a number with any unit of the quantity ("250 mm",
    /// "2,5m"); several, from the larger unit to the smaller ("8' 2 1/2\"", "48° 12' 30\"", "1 h 30 min");
    /// exponents; fractions ("2 1/2"). Comma and point are both decimal signs. Where both stand, or one of
    /// them more than once, they group thousands as well. A text such as "1,234", where the sign that is not
    /// that of the number format may do either, is not understood.
    [[nodiscard]] std::optional<double> parse(std::string_view text, UnitBase const& unit) const;

    /// For the user, in the current language: what would have been understood in place of \p text, which is
    /// not.
    [[nodiscard]] std::string describeExpected(std::string_view text, UnitBase const& unit) const;

    /// The same as `parse`, with a quiet NaN for a text that is not understood.
    [[nodiscard]] double dInternal(std::string const& text, UnitBase const& unit) const;

    /// A plain number, without any unit; a quiet NaN for a text that is none.
    /// With \p format its decimal sign alone is one, and nothing groups thousands; without it the rules of
    /// `parse` hold.
    [[nodiscard]] double dValueWithoutApplyingUnit(std::string const& text, NumberFormat const* format) const;

    /// The text for an editor: the number in the display unit with as many digits as it takes for `parse`
    /// to give back exactly \p value; in feet and inches, or degrees, minutes and seconds, where the style
    /// has them and they do. Where the display unit cannot hold the value, the internal unit stands behind
    /// the number.
    [[nodiscard]] std::string fullDigits(double value, UnitBase const& unit) const;

private:
    [[nodiscard]] UnitBase const& displayUnitFor(UnitBase const& unit) const;
    [[nodiscard]] std::string writeDecimal(double number, UnitBase const& unit) const;
    [[nodiscard]] std::optional<std::string> writeWithStyle(double number) const;
    [[nodiscard]] std::string symbolsOf(UnitBase const& unit) const;

    QuantityBase const* m_quantity;
    UnitBase const* m_displayUnit;
    int m_decimals;
    Style m_style = Style::Decimal;
    bool m_trimsZeros = true;
    bool m_showsUnit = true;
    NumberFormat m_numberFormat;
};

} // namespace qev::unit
