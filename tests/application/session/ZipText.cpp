#include "ZipText.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <zlib.h>

namespace qev::test {

namespace {

constexpr std::size_t centralHeaderSize = 46;
constexpr std::size_t localHeaderSize = 30;

std::uint32_t numberAt(std::string const& bytes, std::size_t place, std::size_t size)
{
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;)
        number = number << 8U | static_cast<unsigned char>(bytes.at(place + i));
    return number;
}

std::string inflateRaw(std::string const& packed, std::size_t size)
{
    std::string text(size, '\0');
    z_stream stream = {};
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(text.data());
    stream.avail_out = static_cast<uInt>(text.size());
    inflateInit2(&stream, -MAX_WBITS);
    inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    return text;
}

} // namespace

std::string readZipMember(std::filesystem::path const& archive, std::string const& name)
{
    std::ifstream file(archive, std::ios::binary);
    std::string const bytes{std::istreambuf_iterator<char>(file), {}};
    auto const end = bytes.rfind("PK\x05\x06");
    if (end == std::string::npos)
        return {};
    auto place = static_cast<std::size_t>(numberAt(bytes, end + 16, 4));
    while (bytes.compare(place, 4, "PK\x01\x02") == 0) {
        auto const method = numberAt(bytes, place + 10, 2);
        auto const packedSize = numberAt(bytes, place + 20, 4);
        auto const size = numberAt(bytes, place + 24, 4);
        auto const nameSize = numberAt(bytes, place + 28, 2);
        auto const local = numberAt(bytes, place + 42, 4);
        if (bytes.substr(place + centralHeaderSize, nameSize) == name) {
            auto const begin =
                local + localHeaderSize + numberAt(bytes, local + 26, 2) + numberAt(bytes, local + 28, 2);
            auto const packed = bytes.substr(begin, packedSize);
            return method == 0 ? packed : inflateRaw(packed, size);
        }
        place +=
            centralHeaderSize + nameSize + numberAt(bytes, place + 30, 2) + numberAt(bytes, place + 32, 2);
    }
    return {};
}

} // namespace qev::test
