#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>

namespace qev {

/// The text of \p key in the dictionaries of \p context in the current language; the key itself where
/// they have none.
HOSTCORE_EXPORT std::string localize(std::string_view key, std::string_view context);

} // namespace qev
