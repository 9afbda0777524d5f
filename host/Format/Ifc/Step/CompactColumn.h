#pragma once

#include "Core/Platform/Prefetch.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace qev::step {

/// Numbers of 64 bits at the price of 32, as long as neighbours lie near each other.
class CompactColumn
{
public:
    void push(std::uint64_t number)
    {
        if ((m_size & (chunkSize - 1)) == 0)
            addChunk(number);
        Chunk& chunk = m_chunks.back();
        std::uint64_t const offset = number - chunk.base;
        if (offset > 0xffffffffU || chunk.wide != nullptr)
            pushWide(number);
        else
            chunk.offsets[m_size & (chunkSize - 1)] = static_cast<std::uint32_t>(offset);
        ++m_size;
    }
    [[nodiscard]] std::uint64_t operator[](std::size_t index) const
    {
        Chunk const& chunk = m_chunks[index >> chunkBits];
        std::size_t const at = index & (chunkSize - 1);
        return chunk.wide != nullptr ? chunk.wide[at] : chunk.base + chunk.offsets[at];
    }
    /// A hint that the number at \p index will be asked for soon.
    void expect(std::size_t index) const
    {
        Chunk const& chunk = m_chunks[index >> chunkBits];
        std::size_t const at = index & (chunkSize - 1);
        platform::prefetch(chunk.wide != nullptr ? reinterpret_cast<char const*>(chunk.wide.get() + at)
                                                 : reinterpret_cast<char const*>(chunk.offsets.get() + at));
    }
    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] std::size_t memory() const;

private:
    static constexpr std::size_t chunkBits = 14;
    static constexpr std::size_t chunkSize = std::size_t{1} << chunkBits;

    struct Chunk
    {
        std::uint64_t base = 0;
        std::unique_ptr<std::uint32_t[]> offsets;
        std::unique_ptr<std::uint64_t[]> wide;
    };

    void addChunk(std::uint64_t firstNumber);
    void pushWide(std::uint64_t number);

    std::vector<Chunk> m_chunks;
    std::size_t m_size = 0;
};

} // namespace qev::step
