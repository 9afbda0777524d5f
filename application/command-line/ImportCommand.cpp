#include "Commands.h"
#include "Core/String/Utf8.h"
#include "FileAccess.h"
#include "ListImport.h"
#include "ListTable.h"
#include "ObjectLabel.h"
#include "Output.h"
#include "SharedSets.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

std::optional<std::string> readText(std::filesystem::path const& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// Tells of sets that further objects share: those change with the objects of the table.
void tellSharedSets(ifc::IfcFile const& file, ListTable const& table, ImportResult const& preview)
{
    std::set<std::pair<std::string, std::string>> told;
    for (ImportChange const& change : preview.changes) {
        std::string const& globalId = table.rows[change.row].globalId;
        auto const object = fc::entityCast<FcObjectDefinition>(file.entityFromGlobalId(globalId));
        std::size_t const others = object ? countOthersWithSet(*object, change.setName) : 0;
        if (others > 0 && told.emplace(globalId, change.setName).second)
            std::cerr << "qev-ifc: the set " << change.setName << " is shared: " << others
                      << " further objects change with " << ObjectLabel::of(*object).getDescription() << '\n';
    }
}

char const* textOf(ImportRefusal::Reason reason)
{
    switch (reason) {
    case ImportRefusal::Reason::NoSuchObject:
        return "there is no object with this GlobalId";
    case ImportRefusal::Reason::NoSuchProperty:
        return "the object has and may have no such property";
    case ImportRefusal::Reason::NotEditable:
        return "it cannot be edited here";
    case ImportRefusal::Reason::NotAnEntry:
        return "it is none of the values to choose from";
    case ImportRefusal::Reason::NotTaken:
        break;
    }
    return "it is no value for this property";
}

void printRefusals(ImportResult const& result)
{
    for (ImportRefusal const& refusal : result.refusals) {
        std::cout << "refused: line " << refusal.line;
        if (!refusal.column.empty())
            std::cout << ", " << refusal.column;
        std::cout << ", " << refusal.globalId;
        if (!refusal.column.empty())
            std::cout << ": '" << onOneLine(refusal.text) << "'";
        std::cout << ": " << textOf(refusal.reason) << '\n';
    }
}

} // namespace

ExitCode runImport(ImportOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    auto const text = readText(options.table);
    if (!text)
        std::cerr << "qev-ifc: cannot read " << str::utf8FromPath(options.table) << '\n';
    if (!file || !text)
        return ExitCode::UnreadableFile;
    auto const table = ListTable::fromCsv(*text);
    if (!table || table->rows.empty()) {
        std::cerr << "qev-ifc: " << str::utf8FromPath(options.table) << " has no "
                  << (table ? "rows" : "column GlobalId in its first line") << '\n';
        return ExitCode::NothingFound;
    }
    ListImport const tableImport(*file, *table);
    ImportResult preview = tableImport.preview();
    tellSharedSets(*file, *table, preview);
    ImportResult const result = tableImport.apply(std::move(preview));
    printRefusals(result);
    std::cout << result.changes.size() << (result.changes.size() == 1 ? " value" : " values") << " changed\n";
    ExitCode const saved = saveFile(*file, options.output);
    if (saved != ExitCode::Success)
        return saved;
    return result.refusals.empty() ? ExitCode::Success : ExitCode::RefusedEdit;
}

} // namespace qev::application
