#include "ChildProcess.h"
#include "Core/Assert/Assert.h"
#include "FileFigures.h"
#include "ManyObjects.h"
#include "ModelGenerator.h"

#include <charconv>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace qev::benchmarks;

constexpr std::uint64_t million = 1'000'000;

struct Options
{
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "qev-benchmarks";
    std::vector<std::uint64_t> sizes;
    std::vector<std::filesystem::path> files;
    unsigned int runs = 5;
};

void printUsage()
{
    std::cerr << "qev-benchmarks [--folder FOLDER] [--runs N] [--sizes 10,100,300] [FILE...]\n"
                 "Measures files that it generates, of the sizes in MB, and the files named.\n";
}

template <class Number>
bool parse(std::string_view text, Number& number)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool parseSizes(std::string_view text, std::vector<std::uint64_t>& sizes)
{
    while (!text.empty()) {
        auto const comma = text.find(',');
        std::uint64_t size = 0;
        if (!parse(text.substr(0, comma), size))
            return false;
        sizes.push_back(size);
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    }
    return true;
}

std::optional<Options> optionsOf(std::vector<std::string> const& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string const& argument = arguments[i];
        if (!argument.starts_with("--")) {
            options.files.emplace_back(argument);
            continue;
        }
        if (++i == arguments.size())
            return std::nullopt;
        if (argument == "--folder")
            options.folder = arguments[i];
        else if (argument == "--runs" ? !parse(arguments[i], options.runs) || options.runs == 0
                                      : argument != "--sizes" || !parseSizes(arguments[i], options.sizes))
            return std::nullopt;
    }
    if (options.sizes.empty() && options.files.empty())
        options.sizes = {10, 100, 300};
    return options;
}

bool generate(std::filesystem::path const& path, std::uint64_t size)
{
    std::cerr << "Generating " << path.string() << " ...\n";
    if (ModelGenerator(path, size).run())
        return true;
    std::cerr << "cannot write " << path.string() << '\n';
    return false;
}

bool measure(ChildProcess const& process, std::filesystem::path const& file,
             std::filesystem::path const& program, unsigned int runs)
{
    std::optional<std::filesystem::path> commandLine = program.parent_path() / "qev-ifc";
    commandLine->replace_extension(program.extension());
    if (!std::filesystem::exists(*commandLine))
        commandLine.reset();
    std::cerr << "Measuring " << file.string() << ", each work " << runs << " times ...\n";
    FigureTable const table = FileFigures(process, file, commandLine).measure(runs);
    table.print(std::cout);
    return !table.hasFailures();
}

bool measureManyObjects(ChildProcess const& process, Options const& options)
{
    constexpr std::size_t count = 100'000;
    auto const file = options.folder / "100000-walls.ifc";
    std::cerr << "Measuring a selection of " << count << " objects ...\n";
    bool isComplete = writeManyObjects(file, count);
    if (isComplete) {
        FigureTable const table = FileFigures(process, file, std::nullopt).measureSelection(options.runs);
        table.print(std::cout);
        isComplete = !table.hasFailures();
    }
    std::filesystem::remove(file);
    return isComplete;
}

} // namespace

int main(int argc, char** argv)
{
    // Kinds of property without a row are reported for every object; here only time counts.
    qev::assert::Assert::setEnabled(false);
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    auto const program = std::filesystem::absolute(argv[0]);
    if (arguments.size() == 5 && arguments[0] == "--work") {
        auto const work = workFromName(arguments[1]);
        return work && ChildProcess::answer(*work, arguments[2], arguments[3], arguments[4]) ? 0 : 1;
    }
    auto const options = optionsOf(arguments);
    if (!options) {
        printUsage();
        return 2;
    }
    std::filesystem::create_directories(options->folder);
    ChildProcess const process(program, options->folder);
    bool isComplete = true;
    for (std::uint64_t const size : options->sizes) {
        auto const file = options->folder / ("generated-" + std::to_string(size) + ".ifc");
        isComplete =
            generate(file, size * million) && measure(process, file, program, options->runs) && isComplete;
        std::filesystem::remove(file);
    }
    isComplete = measureManyObjects(process, *options) && isComplete;
    for (auto const& file : options->files)
        isComplete = measure(process, file, program, options->runs) && isComplete;
    return isComplete ? 0 : 1;
}
