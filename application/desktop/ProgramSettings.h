#pragma once

#include "DisplaySettings.h"
#include "ThemeSwitch.h"

#include <filesystem>

namespace qev::application {

/// All that a user can set about the program, kept from one run to the next.
struct ProgramSettings
{
    DisplaySettings display;
    Theme theme = Theme::OfSystem;
    /// A file or folder of property-set definitions; empty for none.
    std::filesystem::path definitions;
    /// A file or folder of systems of classification; empty for none.
    std::filesystem::path classifications;

    /// Those of the last run.
    [[nodiscard]] static ProgramSettings restore();
    void store() const;

    friend bool operator==(ProgramSettings const&, ProgramSettings const&) = default;
};

} // namespace qev::application
