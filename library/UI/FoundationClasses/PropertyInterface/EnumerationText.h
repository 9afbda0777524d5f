#pragma once

#include "QevFoundationClassesUiExport.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The chosen values of an enumerated property as one text, "NEW, EXISTING".
namespace qev::fc::ui::propertyinterface {

/// The values as an editor shows them; a single blank for none, so that the cell is not empty.
/// \param attributeText the text of the attribute that holds them, in brackets; nothing when it is unset
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT std::string
enumerationText(std::optional<std::string> const& attributeText);

/// The parts of \p text between commas, as they stand there.
[[nodiscard]] std::vector<std::string_view> enumerationPieces(std::string_view text);

/// The value among \p possible that a piece of a text means; nothing when it means none.
///
/// The same text is found first; otherwise blanks around the piece and the case of its letters do not count.
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT std::optional<std::string>
possibleForm(std::string_view piece, std::vector<std::string> const& possible);

} // namespace qev::fc::ui::propertyinterface
