#include "Format/Ifc/Step/StructuralScanner.h"

namespace qev::step {

std::uint64_t StructuralScanner::structuralBytesPortable(char const* block)
{
    std::uint64_t bits = 0;
    for (unsigned int at = 0; at < 64; ++at) {
        char const c = block[at];
        bool const structural = c == ';' || c == '\'' || c == '/' || c == '\n' || c == '\r';
        bits |= std::uint64_t{structural} << at;
    }
    return bits;
}

} // namespace qev::step
