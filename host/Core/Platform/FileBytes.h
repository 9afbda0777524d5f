#pragma once

#include "Core/Platform/FileStamp.h"
#include "HostCoreExport.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qev::platform {

struct FileReadResult;

/// The content of a file, held in memory of its own: what another program does to
/// the file afterwards does not reach it.
///
/// At least `padding` readable zero bytes follow the content, so that a scanner may load
/// whole blocks without minding the end. Movable, not copyable.
class HOSTCORE_EXPORT FileBytes
{
public:
    static constexpr std::size_t padding = 64;

    /// Told how many bytes of how many are done; false asks to stop.
    using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

    FileBytes() = default;
    FileBytes(FileBytes&& other) noexcept;
    FileBytes& operator=(FileBytes&& other) noexcept;

    /// Reads all of \p path. On failure the result says why and names the file.
    static FileReadResult read(std::filesystem::path const& path, Progress const& progress = {});

    /// A copy of \p bytes with the padding behind it.
    static FileBytes copyOf(std::string_view bytes);

    [[nodiscard]] std::string_view view() const { return {data(), m_size}; }
    /// Never null: an empty content still has its padding.
    [[nodiscard]] char const* data() const;
    [[nodiscard]] std::size_t size() const { return m_size; }

private:
    static FileBytes allocate(std::size_t size);

    std::unique_ptr<char[]> m_data;
    std::size_t m_size = 0;
};

/// What `FileBytes::read` gives.
struct FileReadResult
{
    /// Empty when the file could not be read or reading was cancelled.
    std::optional<FileBytes> bytes;
    /// The state of the file that was read.
    FileStamp stamp;
    bool cancelled = false;
    /// File and reason, when it could not be read.
    std::string error;
};

} // namespace qev::platform
