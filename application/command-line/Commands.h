#pragma once

#include "ExitCode.h"
#include "Format.h"
#include "Objects.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The commands of `qev-ifc`. Each prints its result on the standard output and what went wrong on the
/// error stream.
namespace qev::application {

struct InfoOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    bool quick = false;
};

struct SaveOptions
{
    std::filesystem::path file;
    std::filesystem::path output;
};

struct ObjectsOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    std::string className;
};

struct SetsOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    ObjectSelection objects;
};

struct GridOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    ObjectSelection objects;
    /// One grid for each object instead of one for all.
    bool each = false;
    bool usedOnly = false;
};

struct SetOptions
{
    std::filesystem::path file;
    std::filesystem::path output;
    ObjectSelection objects;
    /// Set name, a dot and property name.
    std::string property;
    std::string value;
};

struct EntityOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    /// Which entity: by its global id, by the number of its record, or every one.
    std::string globalId;
    std::optional<std::uint64_t> id;
    bool all = false;
    /// Edits, "path=value" each, and the file to write.
    std::vector<std::string> assignments;
    std::filesystem::path output;
};

struct ListOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    ObjectSelection objects;
    /// Set names and property names with a dot between them, as CSV; all common properties without any.
    std::string columns;
};

struct ImportOptions
{
    std::filesystem::path file;
    /// The CSV file.
    std::filesystem::path table;
    std::filesystem::path output;
};

struct ButtonsOptions
{
    std::filesystem::path file;
    Format format = Format::Text;
    std::string globalId;
};

struct ClickOptions
{
    std::filesystem::path file;
    std::filesystem::path output;
    std::string globalId;
    /// The row, and the key of its button; some buttons have an empty one.
    std::string path;
    std::string button;
    /// The rows to choose in the lists that open, and the code of a classification, in turn.
    std::vector<std::string> choices;
    /// What to type into the popup of bounds, or of a table; none where there is no such popup.
    std::vector<std::string> values;
};

ExitCode runInfo(InfoOptions const& options);
ExitCode runSave(SaveOptions const& options);
ExitCode runObjects(ObjectsOptions const& options);
ExitCode runSets(SetsOptions const& options);
ExitCode runGrid(GridOptions const& options);
ExitCode runSet(SetOptions const& options);
ExitCode runEntity(EntityOptions const& options);
ExitCode runList(ListOptions const& options);
ExitCode runImport(ImportOptions const& options);
ExitCode runButtons(ButtonsOptions const& options);
ExitCode runClick(ClickOptions const& options);

} // namespace qev::application
