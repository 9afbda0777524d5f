#pragma once

#include "HostFoundationClassesExport.h"

#include <string>
#include <string_view>

namespace qev::fc {

/// The text of \p key in the dictionaries of the standard's names, or the key where there is none.
HOSTFOUNDATIONCLASSES_EXPORT std::string localize(std::string_view key);
/// The text of an entity's \p key: `localize("IfcSite", "Name")`; the key where there is none.
HOSTFOUNDATIONCLASSES_EXPORT std::string localize(std::string_view entity, std::string_view key);
/// The text of \p key, or \p fallback where there is none.
HOSTFOUNDATIONCLASSES_EXPORT std::string localizeWithFallback(std::string_view key,
                                                              std::string_view fallback);

} // namespace qev::fc
