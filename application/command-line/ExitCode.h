#pragma once

namespace qev::application {

/// What `qev-ifc` ends with; documented in docs/command-line.md.
enum class ExitCode
{
    Success = 0,
    BadUsage = 2,
    UnreadableFile = 3,
    NothingFound = 4,
    RefusedEdit = 5,
    NotSaved = 6,
};

} // namespace qev::application
