#pragma once

#include "Core/Localization/Localize.h"
#include "Ui/Qt/QtText.h"

namespace qev::ui {

/// A text of the toolkit's own dictionary.
[[nodiscard]] inline QString getUiText(std::string_view key) { return toQString(localize(key, "Ui")); }

} // namespace qev::ui
