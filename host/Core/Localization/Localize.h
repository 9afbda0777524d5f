#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev {

/// The text of \p key in the dictionaries of \p context in the current language; the key itself where
/// they have none.
HOSTCORE_EXPORT std::string localize(std::string_view key, std::string_view context);

/// The same, with \p arguments in place of "%1" to "%9". A number without an argument stays as it is.
HOSTCORE_EXPORT std::string localize(std::string_view key, std::string_view context,
                                     std::vector<std::string> const& arguments);

} // namespace qev
