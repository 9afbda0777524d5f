#include "Core/Platform/FileBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <system_error>
#include <utility>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fstream>
#endif

namespace qev::platform {

namespace {

constexpr char emptyContent[FileBytes::padding] = {};
/// So much is read between two calls of the progress function.
constexpr std::size_t readStep = std::size_t{16} << 20;

std::string describe(std::filesystem::path const& path, std::string const& reason)
{
    return "Cannot read \"" + path.string() + "\": " + reason + ".";
}

[[maybe_unused]] std::string systemReason(int errorNumber)
{
    return std::generic_category().message(errorNumber);
}

} // namespace

FileBytes::FileBytes(FileBytes&& other) noexcept
    : m_data(std::move(other.m_data))
    , m_size(std::exchange(other.m_size, 0))
{
}

FileBytes& FileBytes::operator=(FileBytes&& other) noexcept
{
    m_data = std::move(other.m_data);
    m_size = std::exchange(other.m_size, 0);
    return *this;
}

char const* FileBytes::data() const { return m_data == nullptr ? emptyContent : m_data.get(); }

FileBytes FileBytes::allocate(std::size_t size)
{
    // Ordinary pages on purpose: large ones were at times five times faster and at times three times
    // slower, when a virtual machine had to ask its host for them.
    FileBytes bytes;
    bytes.m_data = std::make_unique_for_overwrite<char[]>(size + padding);
    bytes.m_size = size;
    std::memset(bytes.m_data.get() + size, 0, padding);
    return bytes;
}

FileBytes FileBytes::copyOf(std::string_view bytes)
{
    FileBytes copy = allocate(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.m_data.get());
    return copy;
}

#if defined(__unix__) || defined(__APPLE__)

namespace {

class OpenedFile
{
public:
    explicit OpenedFile(std::filesystem::path const& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~OpenedFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    OpenedFile(OpenedFile const&) = delete;
    OpenedFile& operator=(OpenedFile const&) = delete;

    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace

FileReadResult FileBytes::read(std::filesystem::path const& path, Progress const& progress)
{
    FileReadResult result;
    OpenedFile const file(path);
    struct stat status = {};
    if (file.descriptor() < 0 || ::fstat(file.descriptor(), &status) != 0) {
        result.error = describe(path, systemReason(errno));
        return result;
    }
    if (!S_ISREG(status.st_mode)) {
        result.error = describe(path, S_ISDIR(status.st_mode) ? "it is a folder" : "it is not a file");
        return result;
    }
    // Taken before reading: a change in between then shows as a stamp that differs.
    result.stamp = fileStamp(path).value_or(FileStamp{});

    auto const size = static_cast<std::size_t>(status.st_size);
    std::optional<FileBytes> bytes;
    try {
        bytes = allocate(size);
    } catch (std::bad_alloc const&) {
        result.error =
            describe(path, "there is not enough memory for its " + std::to_string(size) + " bytes");
        return result;
    }
    std::size_t done = 0;
    while (done < size) {
        ssize_t const count = ::pread(file.descriptor(), bytes->m_data.get() + done,
                                      std::min(readStep, size - done), static_cast<off_t>(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            result.error = describe(path, count == 0 ? "it became shorter meanwhile" : systemReason(errno));
            return result;
        }
        done += static_cast<std::size_t>(count);
        if (progress && !progress(done, size)) {
            result.cancelled = true;
            return result;
        }
    }
    result.bytes = std::move(bytes);
    return result;
}

#else

FileReadResult FileBytes::read(std::filesystem::path const& path, Progress const& progress)
{
    FileReadResult result;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        result.error = describe(path, error ? error.message() : std::string("it is not a file"));
        return result;
    }
    result.stamp = fileStamp(path).value_or(FileStamp{});
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        result.error = describe(path, "it cannot be opened");
        return result;
    }
    auto const size = static_cast<std::size_t>(result.stamp.size);
    std::optional<FileBytes> bytes;
    try {
        bytes = allocate(size);
    } catch (std::bad_alloc const&) {
        result.error =
            describe(path, "there is not enough memory for its " + std::to_string(size) + " bytes");
        return result;
    }
    std::size_t done = 0;
    while (done < size) {
        std::size_t const step = std::min(readStep, size - done);
        if (!file.read(bytes->m_data.get() + done, static_cast<std::streamsize>(step))) {
            result.error = describe(path, "reading stopped before its end");
            return result;
        }
        done += step;
        if (progress && !progress(done, size)) {
            result.cancelled = true;
            return result;
        }
    }
    result.bytes = std::move(bytes);
    return result;
}

#endif

} // namespace qev::platform
