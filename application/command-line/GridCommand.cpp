#include "Commands.h"
#include "FileAccess.h"
#include "HeadlessGrid.h"
#include "ObjectLabel.h"
#include "Output.h"

#include <iostream>

namespace qev::application {

namespace {

Json checkedOf(ui::PropertyGridRowRecord const& record)
{
    if (!record.checked)
        return nullptr;
    return *record.checked == ui::CheckState::Checked;
}

Json rowAsJson(GridGroup::Row const& row)
{
    ui::PropertyGridRowRecord const& record = row.record;
    return {{"name", row.name},
            {"label", row.label},
            {"value", record.value},
            {"number", record.number ? Json(*record.number) : Json(nullptr)},
            {"unit", record.unit},
            {"editor", record.editor},
            {"choices", record.choices},
            {"checked", checkedOf(record)},
            {"enabled", record.enabled},
            {"editable", record.editable},
            {"description", record.description}};
}

Json gridAsJson(std::vector<std::shared_ptr<fc::FcBase>> const& objects, std::vector<GridGroup> const& groups)
{
    Json document = {{"objects", Json::array()}, {"groups", Json::array()}};
    for (auto const& object : objects)
        document["objects"].push_back(ObjectLabel::of(*object).globalId);
    for (GridGroup const& group : groups) {
        Json rows = Json::array();
        for (GridGroup::Row const& row : group.rows)
            rows.push_back(rowAsJson(row));
        document["groups"].push_back(
            {{"kind", group.kind}, {"name", group.name}, {"label", group.label}, {"rows", std::move(rows)}});
    }
    return document;
}

std::string valueText(ui::PropertyGridRowRecord const& record)
{
    std::string text = onOneLine(record.value);
    if (record.checked)
        text = (*record.checked == ui::CheckState::Checked ? "[x] " : "[ ] ") + text;
    return text;
}

void printAsText(std::vector<std::shared_ptr<fc::FcBase>> const& objects,
                 std::vector<GridGroup> const& groups)
{
    for (auto const& object : objects) {
        auto const label = ObjectLabel::of(*object);
        std::cout << label.globalId << "  " << label.className << "  " << onOneLine(label.name) << '\n';
    }
    for (GridGroup const& group : groups) {
        std::cout << '\n' << onOneLine(group.label) << "  (" << group.kind << ")\n";
        std::vector<std::vector<std::string>> rows;
        for (GridGroup::Row const& row : group.rows)
            rows.push_back({"  " + row.label, valueText(row.record)});
        printTable(rows);
    }
}

void print(std::vector<std::shared_ptr<fc::FcBase>> const& objects, std::vector<GridGroup> const& groups,
           GridOptions const& options)
{
    if (options.format == Format::Json)
        printJson(gridAsJson(objects, groups), options.each);
    else
        printAsText(objects, groups);
}

} // namespace

ExitCode runGrid(GridOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const places = findObjects(*file, options.objects);
    HeadlessGrid grid(file->data(), !options.usedOnly);
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    for (fc::EntityIndex const place : places) {
        auto object = file->data()->entity(place);
        if (!object)
            continue;
        objects.push_back(std::move(object));
        if (!options.each)
            continue;
        grid.show(objects);
        print(objects, grid.groups(), options);
        grid.show({});
        objects.clear();
        releaseIfMany(*file->data());
    }
    if (!options.each && !objects.empty()) {
        grid.show(objects);
        print(objects, grid.groups(), options);
    }
    return places.empty() ? ExitCode::NothingFound : ExitCode::Success;
}

} // namespace qev::application
