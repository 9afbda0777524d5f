#pragma once

#include "Core/Platform/FileStamp.h"
#include "HostCoreExport.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qev::platform {

/// Writes a file that appears under its name only when it is complete.
///
/// The bytes go to a temporary file in the folder of the target; `commit` flushes it to
/// the disk and puts it in the target's place in one step. Until then, and whenever
/// something fails, the old file stays as it is; the temporary file is removed at
/// destruction. A symbolic link as the target stays: the file it leads to is replaced.
/// The new file takes over the permissions of the old one.
///
/// \code
/// AtomicFileWriter writer{path};
/// writer.write(text);
/// if (!writer.commit())
///     show(writer.error());
/// \endcode
class HOSTCORE_EXPORT AtomicFileWriter
{
public:
    explicit AtomicFileWriter(std::filesystem::path const& target);
    ~AtomicFileWriter();
    AtomicFileWriter(AtomicFileWriter const&) = delete;
    AtomicFileWriter& operator=(AtomicFileWriter const&) = delete;

    /// Appends \p bytes. After a failure nothing more is written, and `commit` fails.
    void write(std::string_view bytes);

    /// The temporary file, for code that writes files by itself in place of `write`. There until `commit`;
    /// empty after a failure.
    [[nodiscard]] std::filesystem::path const& temporaryPath() const;

    /// Flushes and replaces the target. \returns false on any failure since construction.
    bool commit();

    [[nodiscard]] bool failed() const { return !m_error.empty(); }
    /// The file and the reason, after a failure; else empty.
    [[nodiscard]] std::string const& error() const { return m_error; }
    /// The stamp of the file as it stands after a successful `commit`.
    [[nodiscard]] FileStamp const& stamp() const { return m_stamp; }

private:
    class TemporaryFile;

    void flushBuffer();
    void fail(std::string_view what, std::string const& reason);

    std::filesystem::path m_target;
    std::unique_ptr<TemporaryFile> m_file;
    std::string m_buffer;
    std::string m_error;
    FileStamp m_stamp;
    bool m_committed = false;
};

} // namespace qev::platform
