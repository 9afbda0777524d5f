#include "Core/Platform/FileStamp.h"

#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <sys/stat.h>
#else
#include <chrono>
#endif

namespace qev::platform {

#if defined(__unix__) || defined(__APPLE__)

std::optional<FileStamp> fileStamp(std::filesystem::path const& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
#if defined(__APPLE__)
    timespec const& modified = status.st_mtimespec;
#else
    timespec const& modified = status.st_mtim;
#endif
    return FileStamp{static_cast<std::uint64_t>(status.st_size),
                     std::int64_t{modified.tv_sec} * 1'000'000'000 + modified.tv_nsec,
                     static_cast<std::uint64_t>(status.st_ino)};
}

#else

std::optional<FileStamp> fileStamp(std::filesystem::path const& path)
{
    std::error_code error;
    FileStamp stamp;
    stamp.size = std::filesystem::file_size(path, error);
    if (error)
        return std::nullopt;
    auto const modified = std::filesystem::last_write_time(path, error);
    if (error)
        return std::nullopt;
    stamp.modifiedNanoseconds =
        std::chrono::duration_cast<std::chrono::nanoseconds>(modified.time_since_epoch()).count();
    return stamp;
}

#endif

} // namespace qev::platform
