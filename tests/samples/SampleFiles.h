#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qev::test::samples {

/// A model file to try the whole system on.
struct SampleFile
{
    std::filesystem::path path;
    /// Letters, digits and underscores only, for names of tests.
    std::string name;
    bool isMalformed = false;
};

/// Our own models, and those of the further folder where one is given to the build.
[[nodiscard]] std::vector<SampleFile> const& allFiles();
/// Without those that are broken on purpose.
[[nodiscard]] std::vector<SampleFile> wellFormedFiles();

/// For messages of parameterised tests.
void PrintTo(SampleFile const& file, std::ostream* out);

} // namespace qev::test::samples
