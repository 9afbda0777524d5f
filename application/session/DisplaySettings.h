#pragma once

#include "Core/Locale/Locale.h"
#include "Core/Unit/UnitPreferences.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// How a user wants to see models: in which units, with which decimal sign, in which language, with which
/// texts of his own.
struct DisplaySettings
{
    /// The decimal sign in here does not count.
    unit::UnitPreferences units;
    /// Nothing stands for that of the language.
    std::optional<char> decimalSign;
    /// The code of a language; empty for that of the system.
    std::string language;
    /// A folder of files "<context>.<language>.txt"; empty for none.
    std::filesystem::path texts;

    /// The language to use on a system of the language \p ofSystem.
    [[nodiscard]] locale::Locale getLocale(locale::Locale const& ofSystem) const;

    /// Makes the settings those of the program. What is shown already has to be filled anew.
    /// \returns what was not understood of the user's texts, a line each.
    std::vector<std::string> apply(locale::Locale const& ofSystem) const;

    friend bool operator==(DisplaySettings const&, DisplaySettings const&) = default;
};

} // namespace qev::application
