#include "BuildingStructure.h"
#include "Commands.h"
#include "FileAccess.h"
#include "ObjectLabel.h"
#include "Output.h"

namespace qev::application {

ExitCode runObjects(ObjectsOptions const& options)
{
    auto const file = openFile(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const places = findObjects(*file, {{}, options.className, options.className.empty()});
    BuildingStructure const structure(*file->data());
    Json objects = Json::array();
    std::vector<std::vector<std::string>> rows;
    for (fc::EntityIndex const place : places) {
        auto const object = file->data()->entity(place);
        if (!object)
            continue;
        auto const label = ObjectLabel::of(*object);
        auto const parent = structure.getParent(place);
        auto const container = ObjectLabel::of(*file->data(), parent);
        bool const isContained = parent != fc::noEntity;
        rows.push_back({label.globalId, label.className, label.name, container.name});
        objects.push_back({{"globalId", label.globalId},
                           {"class", label.className},
                           {"name", label.name},
                           {"container", isContained ? Json(container.name) : Json(nullptr)},
                           {"containerGlobalId", isContained ? Json(container.globalId) : Json(nullptr)}});
    }
    if (options.format == Format::Json)
        printJson({{"objects", std::move(objects)}});
    else
        printTable(rows);
    return rows.empty() ? ExitCode::NothingFound : ExitCode::Success;
}

} // namespace qev::application
