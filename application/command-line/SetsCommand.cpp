#include "Commands.h"
#include "FileAccess.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "HeadlessGrid.h"
#include "Output.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcPropertySetDefinition;

/// How many of the objects have a set of this name attached.
std::size_t countHaving(std::vector<std::shared_ptr<fc::FcBase>> const& objects, std::string const& name)
{
    std::size_t count = 0;
    for (auto const& object : objects) {
        auto const definition = fc::entityCast<FcObjectDefinition>(object);
        for (auto const& set : definition->getPropertySetDefinitions<FcPropertySetDefinition>()) {
            if (set->Name.get() == name) {
                ++count;
                break;
            }
        }
    }
    return count;
}

std::string kindOf(fc::ui::PropertySetDefinition const& set)
{
    return set.getType() == fc::ui::PropertySetDefinitionType::QuantitySet ? "quantity set" : "property set";
}

} // namespace

ExitCode runSets(SetsOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    for (fc::EntityIndex const place : findObjects(*file, options.objects))
        objects.push_back(file->data()->entity(place));
    HeadlessGrid grid(file->data(), true);
    grid.show(objects);
    Json sets = Json::array();
    std::vector<std::vector<std::string>> rows;
    for (auto const& set : grid.definitions()) {
        if (!set)
            continue;
        std::string const source = set->getDefinition() ? "standard" : "objects";
        std::size_t const count = countHaving(objects, set->getName());
        std::string const onObjects = "on " + std::to_string(count) + " of " + std::to_string(objects.size());
        rows.push_back({set->getName(), kindOf(*set), source, onObjects});
        sets.push_back({{"name", set->getName()},
                        {"kind", kindOf(*set)},
                        {"source", source},
                        {"objectsHavingIt", count}});
    }
    if (options.format == Format::Json)
        printJson({{"sets", std::move(sets)}});
    else
        printTable(rows);
    return objects.empty() || rows.empty() ? ExitCode::NothingFound : ExitCode::Success;
}

} // namespace qev::application
