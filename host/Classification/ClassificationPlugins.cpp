#include "Classification/ClassificationPlugins.h"

#include "Classification/ClassificationReader.h"
#include "Core/String/Fold.h"
#include "Core/String/Utf8.h"

#include <algorithm>
#include <system_error>

namespace qev::classification {

namespace {

bool mayHoldSystems(std::filesystem::path const& file)
{
    auto const ending = str::foldCase(str::utf8FromPath(file.extension()));
    return ending == ".csv" || ending == ".tsv" || ending == ".ifc";
}

std::vector<std::filesystem::path> getFiles(std::filesystem::path const& fileOrFolder)
{
    std::error_code error;
    if (!std::filesystem::is_directory(fileOrFolder, error))
        return {fileOrFolder};
    std::vector<std::filesystem::path> files;
    for (auto const& entry : std::filesystem::directory_iterator(fileOrFolder, error))
        if (entry.is_regular_file(error) && mayHoldSystems(entry.path()))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

ClassificationPlugins::ClassificationPlugins() = default;

ClassificationPlugins::~ClassificationPlugins() = default;

std::vector<std::string> ClassificationPlugins::read(std::filesystem::path const& fileOrFolder)
{
    auto const files = getFiles(fileOrFolder);
    if (files.empty())
        return {str::utf8FromPath(fileOrFolder) +
                ": there is no table (.csv, .tsv) and no IFC file in the folder"};
    std::vector<std::string> messages;
    for (auto const& path : files) {
        auto result = readClassifications(path);
        messages.insert(messages.end(), result.messages.begin(), result.messages.end());
        auto known = std::find_if(m_files.begin(), m_files.end(),
                                  [&path](File const& file) { return file.path == path; });
        if (known == m_files.end())
            known = m_files.insert(m_files.end(), File{path, {}});
        known->systems = std::move(result.systems);
    }
    return messages;
}

std::vector<std::shared_ptr<plugin::BaseInterface>> ClassificationPlugins::getPlugins() const
{
    std::vector<std::shared_ptr<plugin::BaseInterface>> plugins;
    for (auto const& file : m_files)
        plugins.insert(plugins.end(), file.systems.begin(), file.systems.end());
    return plugins;
}

} // namespace qev::classification
