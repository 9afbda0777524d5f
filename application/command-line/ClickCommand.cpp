#include "ClickAnswers.h"
#include "Commands.h"
#include "FileAccess.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "HeadlessEditor.h"
#include "SharedSets.h"

#include <algorithm>
#include <iostream>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

void tell(std::string const& problem) { std::cerr << "qev-ifc: " << problem << '\n'; }

/// Tells why there is no such button. Names may hold anything, so keys stand in quotation marks.
bool hasButton(HeadlessEditor const& editor, ClickOptions const& options)
{
    auto const row = editor.findRow(options.path);
    if (!row) {
        tell("there is no row " + options.path);
        return false;
    }
    auto const& keys = row->record.buttonKeys;
    if (std::find(keys.begin(), keys.end(), options.button) != keys.end())
        return true;
    std::string text = "the row " + options.path + " has no button \"" + options.button + '"';
    for (std::size_t i = 0; i < keys.size(); ++i)
        text += (i == 0 ? "; it has \"" : ", \"") + keys[i] + '"';
    tell(text);
    return false;
}

/// Tells which further objects change with this one, when the row is one of a set.
void tellShared(FcObjectDefinition const& object, std::string const& path)
{
    constexpr std::string_view sets = "PropertySets.";
    if (!path.starts_with(sets))
        return;
    // Names may hold dots, so that the name of the set may end at any of them.
    for (auto end = path.find('.', sets.size());; end = path.find('.', end + 1)) {
        auto const name = path.substr(sets.size(), end == std::string::npos ? end : end - sets.size());
        if (std::size_t const others = countOthersWithSet(object, name); others > 0) {
            tell("the set is shared: " + std::to_string(others) + " further objects change too");
            return;
        }
        if (end == std::string::npos)
            return;
    }
}

void tellWhatHappened(HeadlessEditor const& editor, ClickAnswers const& answers)
{
    for (std::string const& reference : editor.openedReferences())
        std::cout << "leads to " << reference << '\n';
    for (std::string const& message : editor.messages())
        tell(message);
    for (std::string const& problem : answers.problems())
        tell(problem);
}

} // namespace

ExitCode runClick(ClickOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const object = findObject(*file, options.globalId);
    if (!object)
        return ExitCode::NothingFound;
    HeadlessEditor editor;
    editor.show(file->data(), {object});
    if (!hasButton(editor, options))
        return ExitCode::NothingFound;
    if (auto const definition = fc::entityCast<FcObjectDefinition>(object))
        tellShared(*definition, options.path);
    ClickAnswers answers(options.choices, options.values);
    editor.press(options.path, options.button);
    ExitCode const outcome = answers.answer(editor);
    tellWhatHappened(editor, answers);
    if (outcome != ExitCode::Success && outcome != ExitCode::RefusedEdit)
        return outcome;
    ExitCode const saved = saveFile(*file, options.output);
    return saved != ExitCode::Success ? saved : outcome;
}

} // namespace qev::application
