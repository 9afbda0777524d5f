#pragma once

#include <string_view>

namespace qev::fc::ui::propertyinterface {

/// Reports \p text for the visit of \p entityClass by \p visitor: `reportInVisit("...", "GetValue",
/// "FcProperty")`.
void reportInVisit(std::string_view text, std::string_view visitor, std::string_view entityClass);

/// Reports that properties of \p entityClass cannot be written by their ids.
void reportSetValueNotImplemented(std::string_view entityClass);

} // namespace qev::fc::ui::propertyinterface
