#include "Core/Platform/AtomicFileWriter.h"

#include "Core/String/Utf8.h"

#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fstream>
#endif

namespace qev::platform {

namespace {

/// Pieces larger than this are written as they are, smaller ones are gathered.
constexpr std::size_t bufferSize = std::size_t{1} << 20;

std::string reasonOf(int errorNumber) { return std::generic_category().message(errorNumber); }

/// The file that a write to \p path has to replace: where it leads, when it is a symbolic link.
std::filesystem::path replacedFile(std::filesystem::path const& path)
{
    std::error_code error;
    std::filesystem::path current = path;
    for (int step = 0; step < 40 && std::filesystem::is_symlink(current, error); ++step) {
        std::filesystem::path const target = std::filesystem::read_symlink(current, error);
        if (error)
            break;
        current = target.is_absolute() ? target : current.parent_path() / target;
    }
    return current;
}

std::filesystem::path temporaryName(std::filesystem::path const& target)
{
    static constexpr char digits[] = "0123456789abcdefghijklmnopqrstuv";
    std::random_device random;
    std::string suffix;
    for (int i = 0; i < 8; ++i)
        suffix += digits[random() % 32];
    std::filesystem::path name = target.filename();
    name += "." + suffix + ".tmp";
    return target.parent_path() / name;
}

} // namespace

#if defined(__unix__) || defined(__APPLE__)

/// The temporary file; removed at destruction unless it was put in place.
class AtomicFileWriter::TemporaryFile
{
public:
    TemporaryFile() = default;
    ~TemporaryFile()
    {
        close();
        if (!m_path.empty())
            ::unlink(m_path.c_str());
    }
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;

    /// \returns the reason of a failure, else an empty text; so do the others below.
    std::string open(std::filesystem::path const& target)
    {
        // rename needs the folder's permission only, so a protected file would be replaced.
        if (::access(target.c_str(), F_OK) == 0 && ::access(target.c_str(), W_OK) != 0)
            return reasonOf(errno);
        for (int attempt = 0; attempt < 100; ++attempt) {
            std::filesystem::path const name = temporaryName(target);
            m_descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (m_descriptor >= 0) {
                m_path = name;
                return keepPermissions(target);
            }
            if (errno != EEXIST)
                return reasonOf(errno);
        }
        return reasonOf(EEXIST);
    }

    [[nodiscard]] std::filesystem::path const& path() const { return m_path; }

    std::string write(std::string_view bytes)
    {
        while (!bytes.empty()) {
            ssize_t const count = ::write(m_descriptor, bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return reasonOf(errno);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return {};
    }

    std::string replace(std::filesystem::path const& target)
    {
        if (!flushToDisk() || !close())
            return reasonOf(errno);
        if (::rename(m_path.c_str(), target.c_str()) != 0)
            return reasonOf(errno);
        m_path.clear();
        flushFolder(target.parent_path());
        return {};
    }

private:
    std::string keepPermissions(std::filesystem::path const& target) const
    {
        struct stat status = {};
        if (::stat(target.c_str(), &status) != 0)
            return {};
        if (::fchmod(m_descriptor, status.st_mode & 07777) != 0)
            return reasonOf(errno);
        // Only a privileged process may keep a foreign owner; for others the file becomes theirs.
        [[maybe_unused]] int const ignored = ::fchown(m_descriptor, status.st_uid, status.st_gid);
        return {};
    }

    [[nodiscard]] bool flushToDisk() const
    {
#if defined(__APPLE__)
        if (::fcntl(m_descriptor, F_FULLFSYNC) == 0)
            return true;
#endif
        return ::fsync(m_descriptor) == 0;
    }

    /// Makes the new name itself durable. Some file systems refuse it, and the file is complete anyway.
    static void flushFolder(std::filesystem::path const& folder)
    {
        int const descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0)
            return;
        ::fsync(descriptor);
        ::close(descriptor);
    }

    bool close()
    {
        if (m_descriptor < 0)
            return true;
        int const result = ::close(m_descriptor);
        m_descriptor = -1;
        return result == 0;
    }

    std::filesystem::path m_path;
    int m_descriptor = -1;
};

#else

class AtomicFileWriter::TemporaryFile
{
public:
    TemporaryFile() = default;
    ~TemporaryFile()
    {
        m_file.close();
        std::error_code ignored;
        if (!m_path.empty())
            std::filesystem::remove(m_path, ignored);
    }
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;

    std::string open(std::filesystem::path const& target)
    {
        std::error_code error;
        auto const status = std::filesystem::status(target, error);
        bool const isProtected =
            std::filesystem::exists(status) &&
            (status.permissions() & std::filesystem::perms::owner_write) == std::filesystem::perms::none;
        if (isProtected)
            return reasonOf(EACCES);
        std::filesystem::path const name = temporaryName(target);
        m_file.open(name, std::ios::binary | std::ios::trunc);
        if (!m_file)
            return "a temporary file cannot be made in its folder";
        m_path = name;
        if (std::filesystem::exists(status))
            std::filesystem::permissions(m_path, status.permissions(), error);
        return {};
    }

    [[nodiscard]] std::filesystem::path const& path() const { return m_path; }

    std::string write(std::string_view bytes)
    {
        m_file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return m_file ? std::string() : std::string("the disk does not take its bytes");
    }

    std::string replace(std::filesystem::path const& target)
    {
        m_file.close();
        if (!m_file)
            return "the disk does not take its bytes";
        std::error_code error;
        std::filesystem::rename(m_path, target, error);
        if (error)
            return error.message();
        m_path.clear();
        return {};
    }

private:
    std::filesystem::path m_path;
    std::ofstream m_file;
};

#endif

AtomicFileWriter::AtomicFileWriter(std::filesystem::path const& target)
    : m_target(replacedFile(target))
    , m_file(std::make_unique<TemporaryFile>())
{
    std::error_code error;
    auto const status = std::filesystem::status(m_target, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        fail("write", "it is not a file");
        return;
    }
    if (std::string const reason = m_file->open(m_target); !reason.empty())
        fail("write", reason);
}

AtomicFileWriter::~AtomicFileWriter() = default;

void AtomicFileWriter::write(std::string_view bytes)
{
    if (failed() || m_committed)
        return;
    if (m_buffer.size() + bytes.size() > bufferSize)
        flushBuffer();
    if (bytes.size() < bufferSize) {
        m_buffer.append(bytes);
        return;
    }
    if (failed())
        return;
    if (std::string const reason = m_file->write(bytes); !reason.empty())
        fail("write", reason);
}

std::filesystem::path const& AtomicFileWriter::temporaryPath() const { return m_file->path(); }

bool AtomicFileWriter::commit()
{
    flushBuffer();
    if (failed() || m_committed)
        return false;
    if (std::string const reason = m_file->replace(m_target); !reason.empty()) {
        fail("replace", reason);
        return false;
    }
    m_committed = true;
    m_stamp = fileStamp(m_target).value_or(FileStamp{});
    return true;
}

void AtomicFileWriter::flushBuffer()
{
    if (failed() || m_buffer.empty())
        return;
    std::string const reason = m_file->write(m_buffer);
    m_buffer.clear();
    if (!reason.empty())
        fail("write", reason);
}

void AtomicFileWriter::fail(std::string_view what, std::string const& reason)
{
    m_error = "Cannot " + std::string(what) + " \"" + str::utf8FromPath(m_target) + "\": " + reason + ".";
    m_buffer.clear();
    // Removes the temporary file now, while the disk may be full.
    m_file = std::make_unique<TemporaryFile>();
}

} // namespace qev::platform
