#include "Work.h"

#include "Core/Platform/AtomicFileWriter.h"
#include "Core/Platform/ProcessMemory.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "PropertyReading.h"
#include "SpatialStructure.h"
#include "StopWatch.h"

#if defined(QEV_HAS_GRID)
#include "EntityTrees.h"
#include "ObjectViewing.h"
#include "Selection.h"
#endif

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

namespace qev::benchmarks {

namespace {

constexpr std::array<std::pair<Work, std::string_view>, 13> names = {{{Work::Floor, "floor"},
                                                                      {Work::Copy, "copy"},
                                                                      {Work::Open, "open"},
                                                                      {Work::Read, "read"},
                                                                      {Work::Save, "save"},
                                                                      {Work::Look, "look"},
                                                                      {Work::Tree, "tree"},
                                                                      {Work::TreeAgain, "tree-again"},
                                                                      {Work::Trees, "trees"},
                                                                      {Work::First, "first"},
                                                                      {Work::Next, "next"},
                                                                      {Work::Common, "common"},
                                                                      {Work::Change, "change"}}};

std::optional<Measurement> failure(std::string const& reason)
{
    std::cerr << reason << '\n';
    return std::nullopt;
}

std::optional<Measurement> passOverBytes(std::filesystem::path const& path)
{
    auto const size = static_cast<std::size_t>(std::filesystem::file_size(path));
    StopWatch const watch;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(std::fopen(path.string().c_str(), "rb"),
                                                               &std::fclose);
    if (!file)
        return failure("cannot read " + path.string());
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    std::unique_ptr<char[]> const bytes(new char[size]);
    if (std::fread(bytes.get(), 1, size, file.get()) != size)
        return failure("cannot read " + path.string());
    std::size_t records = 0;
    char const* const end = bytes.get() + size;
    for (char const* p = bytes.get(); p != end; ++p, ++records) {
        p = static_cast<char const*>(std::memchr(p, ';', static_cast<std::size_t>(end - p)));
        if (!p)
            break;
    }
    Measurement const measurement = watch.read();
    return records == 0 ? failure("no record in " + path.string()) : measurement;
}

std::optional<Measurement> copyAndFlush(std::filesystem::path const& path,
                                        std::filesystem::path const& target)
{
    constexpr std::size_t step = std::size_t{1} << 20;
    StopWatch const watch;
    std::ifstream file(path, std::ios::binary);
    platform::AtomicFileWriter writer(target);
    std::string buffer(step, '\0');
    while (file.read(buffer.data(), static_cast<std::streamsize>(step)) || file.gcount() > 0)
        writer.write(std::string_view(buffer).substr(0, static_cast<std::size_t>(file.gcount())));
    if (!writer.commit())
        return failure(writer.error());
    return watch.read();
}

std::unique_ptr<ifc::IfcFile> openFile(std::filesystem::path const& path)
{
    ifc::OpenResult result = ifc::IfcFile::open(path);
    if (!result.file) {
        for (step::StepMessage const& message : result.messages)
            std::cerr << message.toString() << '\n';
        return nullptr;
    }
    if (result.file->countsByClass().empty())
        return nullptr;
    walkSpatialStructure(*result.file->data());
    return std::move(result.file);
}

/// Opens the file, and takes the time of this and what follows.
std::optional<Measurement> withOpenFile(std::filesystem::path const& path,
                                        std::function<bool(ifc::IfcFile&)> const& work)
{
    StopWatch const watch;
    auto const file = openFile(path);
    if (!file || !work(*file))
        return std::nullopt;
    Measurement measurement = watch.read();
    measurement.bytes = platform::residentBytes();
    return measurement;
}

bool changeAndSave(ifc::IfcFile& file, std::filesystem::path const& target)
{
    constexpr std::size_t objectCount = 10'000;
    changeProperties(*file.data(), objectCount);
    auto const result = file.save(target);
    if (!result.saved())
        std::cerr << result.text << '\n';
    return result.saved();
}

/// Memory: how much more than before.
Measurement withMemory(std::function<void()> const& work)
{
    std::uint64_t const before = platform::residentBytes();
    StopWatch const watch;
    work();
    Measurement measurement = watch.read();
    measurement.bytes = platform::residentBytes() - std::min(before, platform::residentBytes());
    return measurement;
}

/// Works with objects of a file that is open already, as the library shows them.
std::optional<Measurement> show([[maybe_unused]] Work work,
                                [[maybe_unused]] std::filesystem::path const& path)
{
#if defined(QEV_HAS_GRID)
    constexpr std::size_t changes = 200;
    constexpr std::size_t objectCount = 1'000;
    auto const file = openFile(path);
    if (!file)
        return std::nullopt;
    switch (work) {
    case Work::Look:
        return withMemory([&file] { viewObjects(file->data(), objectCount); });
    case Work::Tree:
        return readTreeOfElement(file->data());
    case Work::TreeAgain:
        return readTreeOfElementAgain(file->data());
    case Work::Trees:
        return withMemory([&file] { readAllTrees(file->data()); });
    case Work::First:
        return firstSelection(file->data());
    case Work::Next:
        return slowestChangeOfSelection(file->data(), changes);
    case Work::Common:
        return commonSetsOfAll(file->data());
    case Work::Change:
        return changeAll(file->data());
    default:
        return std::nullopt;
    }
#else
    return failure("this build shows no properties");
#endif
}

} // namespace

std::string_view nameOf(Work work)
{
    return std::find_if(names.begin(), names.end(), [work](auto const& entry) { return entry.first == work; })
        ->second;
}

std::optional<Work> workFromName(std::string_view name)
{
    auto const* const found =
        std::find_if(names.begin(), names.end(), [name](auto const& entry) { return entry.second == name; });
    return found == names.end() ? std::nullopt : std::optional(found->first);
}

std::optional<Measurement> doWork(Work work, std::filesystem::path const& file,
                                  std::filesystem::path const& scratchFile)
{
    switch (work) {
    case Work::Floor:
        return passOverBytes(file);
    case Work::Copy:
        return copyAndFlush(file, scratchFile);
    case Work::Open:
        return withOpenFile(file, [](ifc::IfcFile&) { return true; });
    case Work::Read:
        return withOpenFile(file, [](ifc::IfcFile& opened) {
            readAllProperties(*opened.data());
            return true;
        });
    case Work::Save:
        return withOpenFile(
            file, [&scratchFile](ifc::IfcFile& opened) { return changeAndSave(opened, scratchFile); });
    case Work::Look:
    case Work::Tree:
    case Work::TreeAgain:
    case Work::Trees:
    case Work::First:
    case Work::Next:
    case Work::Common:
    case Work::Change:
        return show(work, file);
    }
    return std::nullopt;
}

} // namespace qev::benchmarks
