#include "Core/Platform/FileBytes.h"

#include "Core/Platform/HelperThread.h"
#include "Core/String/Utf8.h"

#include <algorithm>
#include <atomic>
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
/// So much is read at once, between two calls of the progress function.
constexpr std::size_t readStep = std::size_t{4} << 20;

std::string describe(std::filesystem::path const& path, std::string const& reason)
{
    return "Cannot read \"" + str::utf8FromPath(path) + "\": " + reason + ".";
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

/// Reads a file in steps, which the caller and a second thread take in turns. Most of the time goes into
/// copying and into making fresh pages, which two processors do in half of it.
class SharedReading
{
public:
    SharedReading(int descriptor, char* target, std::size_t size)
        : m_descriptor(descriptor)
        , m_target(target)
        , m_size(size)
    {
    }

    /// False when reading failed or \p progress, called on the caller's thread, answered so.
    bool run(FileBytes::Progress const& progress)
    {
        std::future<void> helper;
        if (m_size > readStep)
            helper = startHelper([this] { readRemainingSteps(); });
        while (readNextStep()) {
            if (progress && !progress(m_done, m_size)) {
                m_cancelled = true;
                m_stop = true;
            }
        }
        if (helper.valid())
            helper.wait();
        return !m_cancelled && m_errorNumber == 0 && m_done == m_size;
    }

    [[nodiscard]] bool wasCancelled() const { return m_cancelled; }
    [[nodiscard]] std::string error() const
    {
        return m_errorNumber == 0 ? "it became shorter meanwhile" : systemReason(m_errorNumber);
    }

private:
    void readRemainingSteps()
    {
        while (readNextStep()) {
        }
    }

    bool readNextStep()
    {
        std::size_t const begin = m_next.fetch_add(readStep);
        return !m_stop && begin < m_size && readRange(begin, std::min(begin + readStep, m_size));
    }

    bool readRange(std::size_t begin, std::size_t end)
    {
        while (begin < end) {
            ssize_t const count =
                ::pread(m_descriptor, m_target + begin, end - begin, static_cast<off_t>(begin));
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0) {
                if (count < 0)
                    m_errorNumber = errno;
                m_stop = true;
                return false;
            }
            begin += static_cast<std::size_t>(count);
            m_done += static_cast<std::size_t>(count);
        }
        return true;
    }

    int m_descriptor;
    char* m_target;
    std::size_t m_size;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<std::size_t> m_done = 0;
    std::atomic<int> m_errorNumber = 0;
    std::atomic<bool> m_stop = false;
    bool m_cancelled = false;
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
    SharedReading reading(file.descriptor(), bytes->m_data.get(), size);
    if (!reading.run(progress)) {
        result.cancelled = reading.wasCancelled();
        if (!result.cancelled)
            result.error = describe(path, reading.error());
        return result;
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
