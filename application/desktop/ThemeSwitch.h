#pragma once

#include <QPalette>
#include <QString>

namespace qev::application {

/// How the program looks.
enum class Theme
{
    OfSystem,
    Light,
    Dark,
};

/// Changes the look of the whole program.
class ThemeSwitch
{
public:
    /// Keeps the look that the program has now for `Theme::OfSystem`.
    ThemeSwitch();

    void set(Theme theme);
    [[nodiscard]] Theme get() const { return m_theme; }

private:
    Theme m_theme = Theme::OfSystem;
    QString m_styleOfSystem;
    QPalette m_paletteOfSystem;
};

} // namespace qev::application
