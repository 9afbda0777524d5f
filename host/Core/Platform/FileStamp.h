#pragma once

#include "HostCoreExport.h"

#include <cstdint>
#include <filesystem>
#include <optional>

namespace qev::platform {

/// What tells one state of a file from another, without reading it.
///
/// Two equal stamps of one path mean that no other program wrote the file in between,
/// as far as the file system can tell.
struct FileStamp
{
    std::uint64_t size = 0;
    /// Time of the last change, in nanoseconds since an epoch of the platform.
    std::int64_t modifiedNanoseconds = 0;
    /// Number of the file on its volume; changes when the file is replaced. 0 where the platform has none.
    std::uint64_t fileNumber = 0;

    bool operator==(FileStamp const&) const = default;
};

/// The stamp of \p path, symbolic links followed; nothing when there is no such file.
HOSTCORE_EXPORT std::optional<FileStamp> fileStamp(std::filesystem::path const& path);

} // namespace qev::platform
