#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace qev::step {

/// Elements of a type in blocks, so that growing neither copies nor doubles the memory.
template <typename Element>
class ChunkedArray
{
public:
    static constexpr std::size_t chunkBits = 14;
    static constexpr std::size_t chunkSize = std::size_t{1} << chunkBits;

    void push(Element element)
    {
        if ((m_size & (chunkSize - 1)) == 0)
            m_chunks.push_back(std::make_unique_for_overwrite<Element[]>(chunkSize));
        m_chunks.back()[m_size & (chunkSize - 1)] = element;
        ++m_size;
    }
    [[nodiscard]] Element operator[](std::size_t index) const
    {
        return m_chunks[index >> chunkBits][index & (chunkSize - 1)];
    }
    [[nodiscard]] std::size_t size() const { return m_size; }

private:
    std::vector<std::unique_ptr<Element[]>> m_chunks;
    std::size_t m_size = 0;
};

} // namespace qev::step
