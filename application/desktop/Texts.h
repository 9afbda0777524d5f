#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace qev::application {

/// A text of the program in the current language, by its key in the dictionaries "Inspector", with
/// \p arguments in place of "%1" to "%9".
[[nodiscard]] QString getText(std::string_view key, std::vector<QString> const& arguments = {});

/// \p lines as one text, each line with its end.
[[nodiscard]] QString getLines(std::vector<std::string> const& lines);

} // namespace qev::application
