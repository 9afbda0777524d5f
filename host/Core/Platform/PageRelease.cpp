#include "Core/Platform/PageRelease.h"

#if defined(__linux__)
#include "Core/Platform/HelperThread.h"

#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>
#endif

namespace qev::platform {

#if defined(__linux__)

namespace {

/// Below this a thread costs more than it saves.
constexpr std::size_t smallBlock = std::size_t{32} << 20;

void release(std::uintptr_t begin, std::uintptr_t end)
{
    // Only a hint: what is not given back now is when the block is freed.
    static_cast<void>(::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED));
}

} // namespace

void releasePages(char const* data, std::size_t size)
{
    if (size < smallBlock)
        return;
    auto const page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    auto const begin = (reinterpret_cast<std::uintptr_t>(data) + page - 1) / page * page;
    auto const end = (reinterpret_cast<std::uintptr_t>(data) + size) / page * page;
    auto const middle = (begin + (end - begin) / 2) / page * page;
    // Without a thread to spare, freeing the block gives the other half back.
    auto const helper = startHelper([middle, end] { release(middle, end); });
    release(begin, middle);
}

#else

void releasePages(char const*, std::size_t) {}

#endif

} // namespace qev::platform
