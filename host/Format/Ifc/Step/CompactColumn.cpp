#include "Format/Ifc/Step/CompactColumn.h"

namespace qev::step {

void CompactColumn::addChunk(std::uint64_t firstNumber)
{
    // Numbers somewhat below the first fit as well.
    constexpr std::uint64_t room = std::uint64_t{1} << 31;
    Chunk chunk;
    chunk.base = firstNumber > room ? firstNumber - room : 0;
    chunk.offsets = std::make_unique_for_overwrite<std::uint32_t[]>(chunkSize);
    m_chunks.push_back(std::move(chunk));
}

void CompactColumn::pushWide(std::uint64_t number)
{
    Chunk& chunk = m_chunks.back();
    std::size_t const count = m_size & (chunkSize - 1);
    if (chunk.wide == nullptr) {
        chunk.wide = std::make_unique_for_overwrite<std::uint64_t[]>(chunkSize);
        for (std::size_t i = 0; i < count; ++i)
            chunk.wide[i] = chunk.base + chunk.offsets[i];
        chunk.offsets.reset();
    }
    chunk.wide[count] = number;
}

std::size_t CompactColumn::memory() const
{
    std::size_t bytes = 0;
    for (Chunk const& chunk : m_chunks)
        bytes += chunkSize * (chunk.wide != nullptr ? sizeof(std::uint64_t) : sizeof(std::uint32_t));
    return bytes;
}

} // namespace qev::step
