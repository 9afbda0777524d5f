#include "Commands.h"
#include "FileAccess.h"
#include "Output.h"

namespace qev::application {

ExitCode runObjects(ObjectsOptions const& options)
{
    auto const file = openFile(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    auto const places = findObjects(*file, {{}, options.className, options.className.empty()});
    Json objects = Json::array();
    std::vector<std::vector<std::string>> rows;
    for (fc::EntityIndex const place : places) {
        auto const object = file->data()->entity(place);
        if (!object)
            continue;
        auto const container = containerOf(*object);
        std::string const containerName = container ? nameOf(*container) : std::string();
        rows.push_back({globalIdOf(*object), object->getEntityName(), nameOf(*object), containerName});
        objects.push_back({{"globalId", globalIdOf(*object)},
                           {"class", object->getEntityName()},
                           {"name", nameOf(*object)},
                           {"container", container ? Json(containerName) : Json(nullptr)},
                           {"containerGlobalId", container ? Json(globalIdOf(*container)) : Json(nullptr)}});
    }
    if (options.format == Format::Json)
        printJson({{"objects", std::move(objects)}});
    else
        printTable(rows);
    return rows.empty() ? ExitCode::NothingFound : ExitCode::Success;
}

} // namespace qev::application
