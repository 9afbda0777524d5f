#include "FileAccess.h"

#include "Core/String/Utf8.h"

#include <iostream>

namespace qev::application {

std::unique_ptr<ifc::IfcFile> openFile(std::filesystem::path const& path)
{
    ifc::OpenResult opened = ifc::IfcFile::open(path);
    if (opened.file)
        return std::move(opened.file);
    std::cerr << "qev-ifc: cannot open " << str::utf8FromPath(path) << '\n';
    for (step::StepMessage const& message : opened.messages)
        std::cerr << "  " << message.toString() << '\n';
    return nullptr;
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
