#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace qev::step {

/// Numbers of lines, worked out for those who ask: messages are few, and lines are many.
class LineTable
{
public:
    /// The line of a byte of \p text, counted from 1. The same text each time.
    [[nodiscard]] std::uint64_t lineOf(std::string_view text, std::size_t position);

private:
    static constexpr std::size_t step = std::size_t{1} << 16;

    void extendTo(std::string_view text, std::size_t position);

    /// Line ends before each multiple of `step`.
    std::vector<std::uint64_t> m_before = {0};
};

} // namespace qev::step
