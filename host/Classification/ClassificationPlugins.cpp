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

struct FilesResult
{
    std::vector<std::filesystem::path> files;
    /// Why there are none; empty when there are.
    std::string message;
};

FilesResult getFilesIn(std::filesystem::path const& folder)
{
    FilesResult result;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ofEntry;
        if (entry->is_regular_file(ofEntry) && mayHoldSystems(entry->path()))
            result.files.push_back(entry->path());
    }
    if (error)
        return {{}, "Cannot read the folder \"" + str::utf8FromPath(folder) + "\": " + error.message() + "."};
    if (result.files.empty())
        result.message =
            str::utf8FromPath(folder) + ": there is no table (.csv, .tsv) and no IFC file in the folder";
    std::sort(result.files.begin(), result.files.end());
    return result;
}

FilesResult getFiles(std::filesystem::path const& fileOrFolder)
{
    std::error_code error;
    if (std::filesystem::is_directory(fileOrFolder, error))
        return getFilesIn(fileOrFolder);
    return {{fileOrFolder}, {}};
}

} // namespace

ClassificationPlugins::ClassificationPlugins() = default;

ClassificationPlugins::~ClassificationPlugins() = default;

std::vector<std::string> ClassificationPlugins::read(std::filesystem::path const& fileOrFolder)
{
    auto const [files, message] = getFiles(fileOrFolder);
    if (!message.empty())
        return {message};
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
