#include "Output/GeneratedFiles.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

namespace qev::schemacompiler {

namespace {

bool hasText(std::filesystem::path const& path, std::string const& text)
{
    std::error_code error;
    if (std::filesystem::file_size(path, error) != text.size() || error)
        return false;
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {}) == text;
}

void writeText(std::filesystem::path const& path, std::string const& text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path.string());
}

bool isSourceFile(std::filesystem::path const& path)
{
    return path.extension() == ".h" || path.extension() == ".cpp";
}

} // namespace

void GeneratedFiles::add(std::string const& path, std::string text)
{
    if (!m_texts.emplace(path, std::move(text)).second)
        throw std::runtime_error(path + " is made twice");
}

std::size_t GeneratedFiles::writeTo(std::filesystem::path const& folder) const
{
    std::size_t written = 0;
    for (auto const& [path, text] : m_texts) {
        if (hasText(folder / path, text))
            continue;
        writeText(folder / path, text);
        ++written;
    }
    std::vector<std::filesystem::path> outdated;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
        auto const path = entry.path().lexically_relative(folder).generic_string();
        if (entry.is_regular_file() && isSourceFile(entry.path()) && !m_texts.contains(path))
            outdated.push_back(entry.path());
    }
    for (auto const& path : outdated)
        std::filesystem::remove(path);
    return written;
}

} // namespace qev::schemacompiler
