#pragma once

#include "kit/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace qev::test {

using Json = nlohmann::json;

/// What a run of the program gave.
struct CommandLineOutcome
{
    int exitCode = -1;
    std::string output;
    std::string errors;
};

/// Runs `qev-ifc` on the sample models of the project.
class CommandLineFixture : public testing::Test
{
protected:
    /// Runs the program as a shell does.
    CommandLineOutcome run(std::string const& arguments) const
    {
        auto const output = folder.path() / "output.txt";
        auto const errors = folder.path() / "errors.txt";
        std::string const command = quoted(QEV_IFC_PROGRAM) + " " + arguments + " >" +
                                    quoted(output.string()) + " 2>" + quoted(errors.string());
        int const status = std::system(command.c_str());
#ifdef _WIN32
        int const exitCode = status;
#else
        int const exitCode = status >> 8;
#endif
        return {exitCode, readFile(output), readFile(errors)};
    }

    Json json(std::string const& arguments) const
    {
        CommandLineOutcome const result = run(arguments + " --format json");
        EXPECT_EQ(result.exitCode, 0) << arguments << '\n' << result.errors;
        Json document = Json::parse(result.output, nullptr, false);
        EXPECT_FALSE(document.is_discarded()) << result.output;
        return document;
    }

    static std::string quoted(std::string const& text) { return '"' + text + '"'; }
    static std::filesystem::path samplePath(std::string const& name)
    {
        return std::filesystem::path(OWN_SAMPLES_DIRECTORY) / name;
    }
    static std::string sample(std::string const& name) { return quoted(samplePath(name).string()); }

    std::string target() const { return quoted((folder.path() / "saved.ifc").string()); }
    std::string saved() const { return readFile(folder.path() / "saved.ifc"); }

    TemporaryFolder folder;
};

inline void expectKeys(Json const& object, std::vector<std::string> keys)
{
    std::vector<std::string> found;
    for (auto const& item : object.items())
        found.push_back(item.key());
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(found, keys);
}

} // namespace qev::test
