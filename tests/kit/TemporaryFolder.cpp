#include "TemporaryFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace qev::test {

TemporaryFolder::TemporaryFolder()
{
    std::random_device random;
    do {
        m_path = std::filesystem::temp_directory_path() / ("qev-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path TemporaryFolder::write(std::string const& name, std::string_view content) const
{
    std::filesystem::path file = m_path / name;
    std::ofstream(file, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
    return file;
}

std::size_t TemporaryFolder::entryCount() const
{
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(m_path), std::filesystem::directory_iterator()));
}

std::string readFile(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace qev::test
