#pragma once

#include "HostUiExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// The texts of a block of cells, row by row, as it goes through the clipboard.
using ListBlock = std::vector<std::vector<std::string>>;

/// \p block as spreadsheets put it on the clipboard as plain text.
HOSTUI_EXPORT std::string blockAsTabSeparatedText(ListBlock const& block);

/// \p block as a table of HTML. With \p hasHeaders the first row holds the headers.
HOSTUI_EXPORT std::string blockAsHtml(ListBlock const& block, bool hasHeaders);

/// The block that a plain text from the clipboard holds; empty for an empty text.
HOSTUI_EXPORT ListBlock blockFromTabSeparatedText(std::string_view text);

} // namespace qev::ui
