#pragma once

#include "Core/Unit/NumberFormat.h"
#include "Core/Unit/QuantityBase.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::unit {

/// Reads what a user typed for a value of a quantity; the rules stand at `QppSettings::parse`.
class QuantityTextReader
{
public:
    /// \p displayUnit is the unit of a number without one; the result is of \p target.
    QuantityTextReader(std::string_view text, UnitBase const& displayUnit, UnitBase const& target,
                       NumberFormat const& format);

    [[nodiscard]] std::optional<double> read();

    /// After a reading in vain: the number that means one thing in some countries and another in others.
    /// Empty when that was not the reason.
    [[nodiscard]] std::string const& ambiguousNumber() const { return m_ambiguousNumber; }

private:
    struct Term
    {
        double number = 0;
        /// The number as decimal digits; empty for a fraction.
        std::string digits;
        UnitBase const* unit = nullptr;
    };

    bool readSign();
    std::optional<Term> readTerm();
    bool readNumberWithFraction(Term& term);
    std::optional<double> readFraction();
    std::string_view readDigits();
    UnitBase const* readUnit();
    UnitBase const* matchUnit(bool ignoreCase, std::size_t& length) const;
    bool endsUnit(std::size_t length) const;
    void skipBlanks();
    std::optional<double> readFurtherTerms(Term const& first, double sign);
    double inTarget(Term const& term, UnitBase const& unit, double sign) const;
    [[nodiscard]] bool atEnd() const { return m_position == m_text.size(); }
    [[nodiscard]] std::string_view rest() const { return std::string_view(m_text).substr(m_position); }

    std::string m_text;
    UnitBase const& m_displayUnit;
    UnitBase const& m_target;
    NumberFormat m_format;
    std::string m_ambiguousNumber;
    std::size_t m_position = 0;
};

} // namespace qev::unit
