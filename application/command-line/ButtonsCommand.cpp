#include "Commands.h"
#include "FileAccess.h"
#include "HeadlessEditor.h"
#include "ObjectLabel.h"
#include "Output.h"

#include <iostream>

namespace qev::application {

namespace {

Json asJson(HeadlessEditorRow const& row)
{
    auto const& record = row.record;
    Json children = Json::array();
    for (HeadlessEditorRow const& child : row.children)
        children.push_back(asJson(child));
    return {{"path", row.path},
            {"label", row.label},
            {"group", record.isGroup},
            {"value", record.value},
            {"checked", record.checked && *record.checked != ui::CheckState::Indeterminate
                            ? Json(*record.checked == ui::CheckState::Checked)
                            : Json(nullptr)},
            {"editable", record.editable},
            {"buttons", record.buttonKeys},
            {"children", std::move(children)}};
}

std::string valueText(ui::PropertyGridRowRecord const& record)
{
    if (!record.checked)
        return record.value;
    return *record.checked == ui::CheckState::Checked     ? "[x]"
           : *record.checked == ui::CheckState::Unchecked ? "[ ]"
                                                          : "[-]";
}

/// Keys stand in quotation marks, as some are empty.
std::string buttonText(ui::PropertyGridRowRecord const& record)
{
    std::string text;
    for (std::string const& key : record.buttonKeys)
        text += (text.empty() ? "\"" : " \"") + key + '"';
    return text;
}

void appendRows(HeadlessEditorRow const& row, std::size_t depth, std::vector<std::vector<std::string>>& rows)
{
    rows.push_back(
        {std::string(2 * depth, ' ') + row.label, valueText(row.record), buttonText(row.record), row.path});
    for (HeadlessEditorRow const& child : row.children)
        appendRows(child, depth + 1, rows);
}

void printAsText(std::vector<HeadlessEditorRow> const& tree)
{
    std::vector<std::vector<std::string>> rows;
    for (HeadlessEditorRow const& row : tree)
        appendRows(row, 0, rows);
    printTable(rows);
}

void printAsJson(ObjectLabel const& label, std::vector<HeadlessEditorRow> const& tree)
{
    Json document = {{"globalId", label.globalId},
                     {"class", label.className},
                     {"name", label.name},
                     {"rows", Json::array()}};
    for (HeadlessEditorRow const& row : tree)
        document["rows"].push_back(asJson(row));
    printJson(document);
}

} // namespace

ExitCode runButtons(ButtonsOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const object = findObject(*file, options.globalId);
    if (!object)
        return ExitCode::NothingFound;
    HeadlessEditor editor;
    editor.show(file->data(), {object});
    if (options.format == Format::Json)
        printAsJson(ObjectLabel::of(*object), editor.rows());
    else
        printAsText(editor.rows());
    return ExitCode::Success;
}

} // namespace qev::application
