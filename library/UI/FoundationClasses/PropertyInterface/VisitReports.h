#pragma once

#include <string_view>

namespace qev::fc::ui::propertyinterface {

/// Reports \p text for the visit of \p entityClass by \p visitor: `reportInVisit("...", "GetValue",
/// "FcProperty")`. The line is that of the caller.
void reportInVisit(std::string_view text, std::string_view visitor, std::string_view entityClass,
                   unsigned int line = __builtin_LINE());

/// Reports that properties of \p entityClass cannot be written by their ids. The line is that of the caller.
void reportSetValueNotImplemented(std::string_view entityClass, unsigned int line = __builtin_LINE());

} // namespace qev::fc::ui::propertyinterface
