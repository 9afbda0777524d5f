#include "GlobalId.h"

#include <string_view>

namespace qev::benchmarks {

std::string globalIdOf(std::uint64_t number)
{
    constexpr std::string_view digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
    std::string id(22, '0');
    for (std::size_t place = id.size(); number > 0 && place > 0; number /= digits.size())
        id[--place] = digits[number % digits.size()];
    return id;
}

} // namespace qev::benchmarks
