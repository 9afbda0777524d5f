#include "Core/Id/Guid.h"

#include <cstring>
#include <random>

namespace qev {

namespace {

constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr std::size_t textLength = 22;

/// The first byte takes two characters, and each three bytes after it take four.
constexpr std::size_t firstGroupLength = 2;
constexpr std::size_t groupLength = 4;
constexpr std::size_t bytesInGroup = 3;

std::mt19937_64& randomNumbers()
{
    thread_local std::mt19937_64 engine = [] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }();
    return engine;
}

void appendDigits(std::string& text, std::uint32_t number, std::size_t count)
{
    for (std::size_t i = count; i-- > 0;)
        text += digits[(number >> (6 * i)) & 0x3F];
}

std::optional<std::uint32_t> readDigits(std::string_view text)
{
    std::uint32_t number = 0;
    for (char const character : text) {
        auto const digit = digits.find(character);
        if (digit == std::string_view::npos)
            return std::nullopt;
        number = number * 64 + static_cast<std::uint32_t>(digit);
    }
    return number;
}

} // namespace

Guid Guid::generate()
{
    Bytes bytes{};
    std::uint64_t const halves[] = {randomNumbers()(), randomNumbers()()};
    std::memcpy(bytes.data(), halves, bytes.size());
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
    return Guid(bytes);
}

std::optional<Guid> Guid::fromString(std::string_view text)
{
    if (text.size() != textLength)
        return std::nullopt;
    auto const first = readDigits(text.substr(0, firstGroupLength));
    if (!first || *first > 0xFF)
        return std::nullopt;
    Bytes bytes{};
    bytes[0] = static_cast<std::uint8_t>(*first);
    std::size_t position = 1;
    for (std::size_t start = firstGroupLength; start < textLength; start += groupLength) {
        auto const group = readDigits(text.substr(start, groupLength));
        if (!group)
            return std::nullopt;
        for (std::size_t i = bytesInGroup; i-- > 0;)
            bytes[position++] = static_cast<std::uint8_t>(*group >> (8 * i));
    }
    return Guid(bytes);
}

std::string Guid::toString() const
{
    std::string text;
    text.reserve(textLength);
    appendDigits(text, m_bytes[0], firstGroupLength);
    for (std::size_t i = 1; i < m_bytes.size(); i += bytesInGroup) {
        std::uint32_t const group =
            (std::uint32_t{m_bytes[i]} << 16) | (std::uint32_t{m_bytes[i + 1]} << 8) | m_bytes[i + 2];
        appendDigits(text, group, groupLength);
    }
    return text;
}

} // namespace qev

std::size_t std::hash<qev::Guid>::operator()(qev::Guid const& guid) const noexcept
{
    std::uint64_t halves[2];
    std::memcpy(halves, guid.bytes().data(), sizeof halves);
    return static_cast<std::size_t>(halves[0] ^ (halves[1] * 0x9E3779B97F4A7C15ull));
}
