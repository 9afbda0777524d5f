#pragma once

namespace qev::application {

/// What both programs end with; documented in docs/command-line.md and docs/settings.md.
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
