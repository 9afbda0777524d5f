#pragma once

#include <string>
#include <utility>

namespace qev::fc::resource::measure {

/// A short text, IfcLabel.
class FcLabel
{
public:
    FcLabel() = default;
    explicit FcLabel(std::string text)
        : m_text(std::move(text))
    {
    }

    [[nodiscard]] std::string const& text() const { return m_text; }

    friend bool operator==(FcLabel const&, FcLabel const&) = default;

private:
    std::string m_text;
};

} // namespace qev::fc::resource::measure
