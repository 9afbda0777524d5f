#include "Core/Platform/ProcessMemory.h"

#if defined(__linux__)
#include <fstream>
#include <unistd.h>
#elif defined(__APPLE__)
#include <mach/mach.h>
#endif

namespace qev::platform {

#if defined(__linux__)

std::uint64_t residentBytes()
{
    std::ifstream status("/proc/self/statm");
    std::uint64_t totalPages = 0;
    std::uint64_t residentPages = 0;
    if (!(status >> totalPages >> residentPages))
        return 0;
    return residentPages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

#elif defined(__APPLE__)

std::uint64_t residentBytes()
{
    mach_task_basic_info info = {};
    mach_msg_type_number_t count = MACH_TASK_BASIC_INFO_COUNT;
    auto const result =
        task_info(mach_task_self(), MACH_TASK_BASIC_INFO, reinterpret_cast<task_info_t>(&info), &count);
    return result == KERN_SUCCESS ? info.resident_size : 0;
}

#else

std::uint64_t residentBytes() { return 0; }

#endif

} // namespace qev::platform
