#pragma once

#include "Core/Unit/NumberFormat.h"
#include "Core/Unit/QppSettings.h"
#include "Core/Unit/QuantityId.h"
#include "HostCoreExport.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::unit {

/// How a user wants numbers written: for each quantity its unit, style and decimals, and the decimal sign.
///
/// A value of its own. It takes effect when it is handed to `QppRegistration::setPreferences`, and never
/// changes a value of a model.
class HOSTCORE_EXPORT UnitPreferences
{
public:
    /// Choices for all quantities at once.
    enum class System
    {
        /// What `QppSettings` begins with.
        Metric,
        /// Feet and inches, pounds, degrees Fahrenheit and what is made of them.
        Imperial
    };

    /// "metric" or "imperial"; nothing for any other name.
    [[nodiscard]] static std::optional<System> systemFromName(std::string_view name);

    struct Choice
    {
        /// The number of a unit.
        int unit = 0;
        int decimals = 0;
        QppSettings::Style style = QppSettings::Style::Decimal;

        friend bool operator==(Choice const&, Choice const&) = default;
    };

    /// The metric choices, with a point for the decimal sign.
    UnitPreferences() = default;
    explicit UnitPreferences(System system);

    /// The choice for a quantity; the metric one where the user made none.
    [[nodiscard]] Choice choice(QuantityId quantity) const;
    /// A unit of another quantity is refused: nothing changes. Decimals are brought into the range that
    /// `QppSettings` has. \returns whether the choice was taken.
    bool setChoice(QuantityId quantity, Choice const& choice);

    /// The choice for a unit alone, with as many decimals as show values of its quantity about as exactly as
    /// the metric choice does: none for millimetres where metres have three.
    [[nodiscard]] static Choice choiceOfUnit(int unit);

    /// The system that all choices are of; nothing when the user has a mixture. The decimal sign does not
    /// count.
    [[nodiscard]] std::optional<System> system() const;

    [[nodiscard]] NumberFormat const& numberFormat() const { return m_numberFormat; }
    void setNumberFormat(NumberFormat const& format) { m_numberFormat = format; }

    /// Puts the choice for the quantity of \p settings into them. Those of a quantity without facts keep
    /// their unit.
    void apply(QppSettings& settings) const;

    /// The choices that differ from the metric ones, a line each, such as "length=ft;2;feetAndInches".
    /// The decimal sign is not among them.
    [[nodiscard]] std::vector<std::string> toLines() const;
    /// Reads what `toLines` gives. Lines that are not understood, such as those of a later version,
    /// leave the metric choice.
    [[nodiscard]] static UnitPreferences fromLines(std::vector<std::string> const& lines);

    friend bool operator==(UnitPreferences const&, UnitPreferences const&) = default;

private:
    void readLine(std::string_view line);

    /// Only what differs from the metric choice.
    std::map<QuantityId, Choice> m_choices;
    NumberFormat m_numberFormat;
};

} // namespace qev::unit
