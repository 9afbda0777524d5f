#include "Classifications.h"
#include "Commands.h"
#include "Core/Assert/Assert.h"
#include "Core/Locale/Locale.h"
#include "Definitions.h"
#include "DisplaySettings.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>

namespace {

using namespace qev::application;

void addFile(CLI::App& command, std::filesystem::path& file)
{
    command.add_option("FILE", file, "an IFC file")->required();
}

void addFormat(CLI::App& command, Format& format)
{
    std::map<std::string, Format> const names = {{"text", Format::Text}, {"json", Format::Json}};
    command.add_option("--format", format, "text for people, json for programs")
        ->transform(CLI::CheckedTransformer(names, CLI::ignore_case));
}

void addOutput(CLI::App& command, std::filesystem::path& output)
{
    command.add_option("--output", output, "the file to write; it may be FILE itself")->required();
}

void addObjects(CLI::App& command, ObjectSelection& objects, bool mayBeAll)
{
    auto* const group = command.add_option_group("objects", "which objects");
    group->add_option("--object", objects.globalIds, "GlobalId of an object; may be given several times");
    group->add_option("--class", objects.className,
                      "all objects of a class and its subclasses, such as IfcWall");
    if (mayBeAll)
        group->add_flag("--all", objects.all, "every object, type and project");
    group->require_option(1);
}

/// Adds how values and texts are shown, which is metric and English unless the options say otherwise.
void addDisplay(CLI::App& app, DisplaySettings& display)
{
    using qev::unit::UnitPreferences;
    display.language = "en";
    app.add_option_function<std::string>(
           "--units",
           [&display](std::string const& name) {
               if (auto const system = UnitPreferences::systemFromName(name))
                   display.units = UnitPreferences(*system);
           },
           "metric or imperial units, in what is shown and for numbers without a unit")
        ->check(CLI::IsMember({"metric", "imperial"}));
    app.add_option("--language", display.language, "the language of names and texts: en, de or fr")
        ->check([](std::string const& code) {
            return qev::locale::Locale::fromCode(code) ? std::string() : code + " is no code of a language";
        });
    app.add_option("--texts", display.texts, "a folder of texts of your own: <context>.<language>.txt")
        ->check(CLI::ExistingDirectory);
}

/// The subcommands and what they were given; one of them sets `run`.
struct CommandLine
{
    InfoOptions info;
    SaveOptions save;
    ObjectsOptions objects;
    SetsOptions sets;
    GridOptions grid;
    SetOptions set;
    EntityOptions entity;
    ListOptions list;
    ImportOptions importTable;
    ButtonsOptions buttons;
    ClickOptions click;
    bool showReports = false;
    std::vector<std::filesystem::path> definitions;
    std::vector<std::filesystem::path> classifications;
    DisplaySettings display;
    std::function<ExitCode()> run;

    void addTo(CLI::App& app);

private:
    void addEditor(CLI::App& app);
};

void CommandLine::addTo(CLI::App& app)
{
    auto* command =
        app.add_subcommand("info", "schema, author, counts by class, and what is wrong with the file");
    addFile(*command, info.file);
    addFormat(*command, info.format);
    command->add_flag("--quick", info.quick, "only what opening finds, without reading every record");
    command->callback([this] { run = [this] { return runInfo(info); }; });

    command = app.add_subcommand("save", "open and save; without an edit the same bytes");
    addFile(*command, save.file);
    addOutput(*command, save.output);
    command->callback([this] { run = [this] { return runSave(save); }; });

    command = app.add_subcommand("objects", "GlobalId, class, name and container of the objects");
    addFile(*command, objects.file);
    addFormat(*command, objects.format);
    command->add_option("--class", objects.className, "only this class and its subclasses");
    command->callback([this] { run = [this] { return runObjects(objects); }; });

    command = app.add_subcommand("sets", "the property and quantity sets that the objects have in common");
    addFile(*command, sets.file);
    addFormat(*command, sets.format);
    addObjects(*command, sets.objects, false);
    command->callback([this] { run = [this] { return runSets(sets); }; });

    command = app.add_subcommand("grid", "the rows that the property grid shows for the objects");
    addFile(*command, grid.file);
    addFormat(*command, grid.format);
    addObjects(*command, grid.objects, true);
    command->add_flag("--each", grid.each, "one grid per object, one document a line as JSON");
    command->add_flag("--used-only", grid.usedOnly, "leave out rows without a value");
    command->callback([this] { run = [this] { return runGrid(grid); }; });

    command = app.add_subcommand("set", "give one property a value in the objects, and save");
    addFile(*command, set.file);
    addOutput(*command, set.output);
    addObjects(*command, set.objects, false);
    command
        ->add_option("--property", set.property,
                     "set name, a dot and property name: Pset_WallCommon.FireRating")
        ->required();
    command->add_option("--value", set.value, "what to type into the row; empty clears it")->required();
    command->callback([this] { run = [this] { return runSet(set); }; });

    command = app.add_subcommand("entity", "the tree of properties of any entity");
    addFile(*command, entity.file);
    addFormat(*command, entity.format);
    auto* const which = command->add_option_group("entity", "which entity");
    which->add_option("--object", entity.globalId, "the GlobalId of the entity");
    which->add_option("--id", entity.id, "the number of its record: 12 for #12");
    which->add_flag("--all", entity.all, "every entity of the file, one document a line as JSON");
    which->require_option(1);
    command->add_option("--set", entity.assignments,
                        "path=value, what to change; may be given several times");
    command->add_option("--output", entity.output, "the file to write; it may be FILE itself");
    command->callback([this] { run = [this] { return runEntity(entity); }; });

    command = app.add_subcommand("list",
                                 "one row for each object, one column for each property they have in common");
    addFile(*command, list.file);
    std::map<std::string, Format> const formats = {
        {"text", Format::Text}, {"json", Format::Json}, {"csv", Format::Csv}};
    command
        ->add_option("--format", list.format,
                     "text for people, json for programs, csv for spreadsheets and import")
        ->transform(CLI::CheckedTransformer(formats, CLI::ignore_case));
    addObjects(*command, list.objects, false);
    command->add_option("--columns", list.columns,
                        "the properties wanted: \"Pset_WallCommon.FireRating,Pset_WallCommon.Status\"");
    command->callback([this] { run = [this] { return runList(list); }; });

    command = app.add_subcommand("import", "bring a table of list --format csv back, and save");
    addFile(*command, importTable.file);
    command
        ->add_option("CSV", importTable.table,
                     "a table with a column GlobalId and columns named \"Set.Property\"")
        ->required();
    addOutput(*command, importTable.output);
    command->callback([this] { run = [this] { return runImport(importTable); }; });

    addEditor(app);

    app.add_flag("--reports", showReports, "print reports of programming errors on the error stream");
    app.add_option("--definitions", definitions,
                   "property-set definitions in the standard's XML form, a file or a folder; may be given "
                   "several times");
    app.add_option(
        "--classifications", classifications,
        "systems of classification: a table of codes (.csv), an IFC file with classifications, or a "
        "folder; may be given several times");
    addDisplay(app, display);
    app.require_subcommand(1);
}

/// The commands of the object editor.
void CommandLine::addEditor(CLI::App& app)
{
    auto* command = app.add_subcommand("buttons", "the rows of the object editor and their buttons");
    addFile(*command, buttons.file);
    addFormat(*command, buttons.format);
    command->add_option("--object", buttons.globalId, "the GlobalId of the object")->required();
    command->callback([this] { run = [this] { return runButtons(buttons); }; });

    command = app.add_subcommand("click", "press a button of the object editor, answer what opens, and save");
    addFile(*command, click.file);
    addOutput(*command, click.output);
    command->add_option("--object", click.globalId, "the GlobalId of the object")->required();
    command->add_option("--path", click.path, "the row, as buttons prints it")->required();
    command->add_option("--button", click.button, "the key of the button; \"\" for an empty one")->required();
    command->add_option("--choose", click.choices,
                        "what to choose in the lists that open, one after the other, and what to tick: the "
                        "text of a row, or its number from 0; and the code of a classification");
    command->add_option("--values", click.values,
                        "what to type: lower bound, upper bound and set point, or the two values of each row "
                        "of a table; \"\" for none");
    command->callback([this] { run = [this] { return runClick(click); }; });
}

void print(std::vector<std::string> const& messages)
{
    for (auto const& message : messages)
        std::cerr << "qev-ifc: " << message << '\n';
}

bool addAllDefinitions(std::vector<std::filesystem::path> const& filesOrFolders)
{
    for (auto const& path : filesOrFolders) {
        auto const result = addDefinitions(path);
        print(result.messages);
        if (!result.isAnyFound)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Shows and edits the properties of IFC files.", "qev-ifc");
    CommandLine commandLine;
    commandLine.addTo(app);
    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(ExitCode::BadUsage);
    }
    // Properties of kinds that have no row yet are reported as not implemented; that is of use to developers
    // only.
    qev::assert::Assert::setEnabled(commandLine.showReports);
    print(commandLine.display.apply(qev::locale::Locale()));
    if (!addAllDefinitions(commandLine.definitions))
        return static_cast<int>(ExitCode::UnreadableFile);
    for (auto const& path : commandLine.classifications)
        print(addClassifications(path));
    ExitCode code = commandLine.run();
    if (!std::cout.flush()) {
        print({"the output could not be written"});
        if (code == ExitCode::Success)
            code = ExitCode::NotSaved;
    }
    return static_cast<int>(code);
}
