#pragma once

#include "QevFoundationClassesUiExport.h"

#include <functional>
#include <string>
#include <vector>

namespace qev::fc::ui {

/// The text of \p key in the first of \p contexts that has one.
///
/// When none has, \p fallback gives the text; without a fallback it is the key.
QEVFOUNDATIONCLASSESUI_EXPORT std::string localizedText(std::vector<std::string> const& contexts,
                                                        std::string const& key,
                                                        std::function<std::string()> const& fallback = {});

} // namespace qev::fc::ui
