#pragma once

#include "Format/Ifc/Schema/Schema.h"
#include "Format/Ifc/Schema/TextError.h"

namespace qev::ifc::def::schema {

/// Reads a schema in the notation of `data/README.md`.
///
/// Every error found is appended to \p errors, in the order of the lines as far as reading goes;
/// with any error the result is null.
[[nodiscard]] HOSTIFCSCHEMA_EXPORT std::unique_ptr<Schema> parseSchema(std::string_view text,
                                                                       std::vector<TextError>& errors);

/// The same for a text that is part of the program: an error is a programming error and is reported.
/// \returns null after a report.
[[nodiscard]] HOSTIFCSCHEMA_EXPORT std::unique_ptr<Schema> parseSchema(std::string_view text);

} // namespace qev::ifc::def::schema
