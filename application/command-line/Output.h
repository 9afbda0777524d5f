#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace qev::application {

using Json = nlohmann::ordered_json;

/// Prints a document on the standard output; on one line, or indented for reading. Bytes that are no
/// valid text become replacement characters.
void printJson(Json const& document, bool onOneLine = false);

/// Prints rows in columns as wide as their widest cell; line breaks inside cells become blanks.
void printTable(std::vector<std::vector<std::string>> const& rows);

/// A text without line breaks and tabs, for one line of output.
std::string onOneLine(std::string text);

} // namespace qev::application
