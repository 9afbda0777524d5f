#pragma once

#include "HostCoreExport.h"

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qev {

/// A globally unique identifier of 16 bytes.
///
/// Its text is the compressed form of IFC files: 22 characters to the base 64 with
/// the digits 0-9, A-Z, a-z, _ and $, of which the first holds two bits alone.
class HOSTCORE_EXPORT Guid
{
public:
    using Bytes = std::array<std::uint8_t, 16>;

    /// The identifier of nothing: all bytes are zero.
    constexpr Guid() = default;

    explicit constexpr Guid(Bytes const& bytes)
        : m_bytes(bytes)
    {
    }

    /// A new random identifier (version 4).
    static Guid generate();

    /// Reads the 22 characters of an IFC file; nothing when \p text is no such text.
    static std::optional<Guid> fromString(std::string_view text);

    [[nodiscard]] std::string toString() const;

    [[nodiscard]] constexpr Bytes const& bytes() const { return m_bytes; }
    [[nodiscard]] constexpr bool isNull() const { return m_bytes == Bytes{}; }

    friend constexpr bool operator==(Guid const&, Guid const&) = default;
    friend constexpr auto operator<=>(Guid const&, Guid const&) = default;

private:
    Bytes m_bytes{};
};

} // namespace qev

template <>
struct std::hash<qev::Guid>
{
    HOSTCORE_EXPORT std::size_t operator()(qev::Guid const& guid) const noexcept;
};
