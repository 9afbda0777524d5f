#include "SampleFiles.h"

#include <algorithm>
#include <cctype>
#include <ostream>

namespace qev::test::samples {

namespace {

std::string nameOf(std::filesystem::path const& path)
{
    std::string name = path.stem().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

void addFilesBelow(std::filesystem::path const& folder, std::vector<SampleFile>& files)
{
    for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file() || entry.path().extension() != ".ifc")
            continue;
        bool const isMalformed = entry.path().parent_path().filename() == "malformed";
        files.push_back({entry.path(), nameOf(entry.path()), isMalformed});
    }
}

std::vector<SampleFile> findFiles()
{
    std::vector<SampleFile> files;
    addFilesBelow(OWN_SAMPLES_DIRECTORY, files);
    std::string const further = QEV_SAMPLES_DIRECTORY;
    if (!further.empty() && std::filesystem::is_directory(further))
        addFilesBelow(further, files);
    std::sort(files.begin(), files.end(), [](auto const& a, auto const& b) { return a.name < b.name; });
    return files;
}

} // namespace

std::vector<SampleFile> const& allFiles()
{
    static std::vector<SampleFile> const files = findFiles();
    return files;
}

std::vector<SampleFile> wellFormedFiles()
{
    std::vector<SampleFile> files = allFiles();
    std::erase_if(files, [](SampleFile const& file) { return file.isMalformed; });
    return files;
}

void PrintTo(SampleFile const& file, std::ostream* out) { *out << file.path.filename().string(); }

} // namespace qev::test::samples
