#include "FileAccess.h"

#include "Core/Platform/HelperThread.h"
#include "Core/String/Utf8.h"
#include "Format/Ifc/Schema/SchemaLoader.h"

#include <cstdint>
#include <future>
#include <iostream>

namespace qev::application {

namespace {

void readSchemas()
{
    ifc::SchemaLoader::curr().pSchemaFromName(ifc::SchemaLoader::modelVersion);
    ifc::SchemaLoader::curr().pSchemaFromName("IFC4X1");
}

std::unique_ptr<ifc::IfcFile> openAndTell(std::filesystem::path const& path,
                                          ifc::IfcFile::Progress const& progress)
{
    ifc::OpenResult opened = ifc::IfcFile::open(path, progress);
    if (opened.file)
        return std::move(opened.file);
    std::cerr << "qev-ifc: cannot open " << str::utf8FromPath(path) << '\n';
    for (step::StepMessage const& message : opened.messages)
        std::cerr << "  " << message.toString() << '\n';
    return nullptr;
}

} // namespace

std::unique_ptr<ifc::IfcFile> openFile(std::filesystem::path const& path) { return openAndTell(path, {}); }

std::unique_ptr<ifc::IfcFile> openFileAndSchemas(std::filesystem::path const& path)
{
    // Two threads read the bytes of the file, and a third one would hold them up; only one finds the records
    // then, for which progress counts anew. It does not for files of few records: their schemas are read when
    // asked for.
    std::future<void> schemas;
    std::uint64_t lastDone = 0;
    return openAndTell(path, [&](std::uint64_t done, std::uint64_t) {
        if (done < lastDone && !schemas.valid())
            schemas = platform::startHelper(readSchemas);
        lastDone = done;
        return true;
    });
}

ExitCode saveFile(ifc::IfcFile& file, std::filesystem::path const& output)
{
    ifc::SaveResult const result = file.save(output, step::StepPatch::IfChanged::Refuse);
    for (std::string const& change : result.notStored)
        std::cerr << "qev-ifc: " << file.schemaName() << " has no place for " << change << '\n';
    if (result.saved())
        return ExitCode::Success;
    std::cerr << "qev-ifc: " << result.text << '\n';
    return ExitCode::NotSaved;
}

} // namespace qev::application
