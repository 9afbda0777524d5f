#pragma once

namespace qev::application {

/// For whom a command prints.
enum class Format
{
    Text, ///< people
    Json, ///< programs
    Csv,  ///< spreadsheets
};

} // namespace qev::application
