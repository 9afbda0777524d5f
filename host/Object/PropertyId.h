#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace qev::object {

/// The id of a property: a text, and nothing else.
///
/// The empty text is the id of nothing. A compound id joins its segments by "."; building and
/// splitting it is the business of whoever uses it. Ids are ordered byte by byte.
class PropertyId
{
public:
    PropertyId() = default;

    explicit PropertyId(std::string text)
        : m_text(std::move(text))
    {
    }

    explicit PropertyId(std::string_view text)
        : m_text(text)
    {
    }

    explicit PropertyId(char const* text)
        : m_text(text)
    {
    }

    [[nodiscard]] std::string const& text() const { return m_text; }
    [[nodiscard]] bool empty() const { return m_text.empty(); }

    friend bool operator==(PropertyId const&, PropertyId const&) = default;
    friend std::strong_ordering operator<=>(PropertyId const&, PropertyId const&) = default;

private:
    std::string m_text;
};

} // namespace qev::object

template <>
struct std::hash<qev::object::PropertyId>
{
    std::size_t operator()(qev::object::PropertyId const& id) const noexcept
    {
        return std::hash<std::string>()(id.text());
    }
};
