#pragma once

#include "Core/Locale/Locale.h"

#include <QString>
#include <vector>

namespace qev::application {

/// The languages in which the program has texts of its own, or the user a folder with some.
[[nodiscard]] std::vector<locale::Locale> getLanguages();

/// The name of a language in that language: "Deutsch". Its code where nobody knows a name.
[[nodiscard]] QString getLanguageName(locale::Locale const& language);

/// The language of the user's system.
[[nodiscard]] locale::Locale getLanguageOfSystem();

} // namespace qev::application
