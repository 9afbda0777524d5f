#include "Commands.h"
#include "EntityProperties.h"
#include "FileAccess.h"
#include "ObjectLabel.h"
#include "Output.h"

#include <iostream>

namespace qev::application {

namespace {

// --- Printing ---------------------------------------------------------------------------------------

struct JsonOfValue
{
    Json operator()(std::monostate) const { return nullptr; }
    template <class Value>
    Json operator()(std::optional<Value> const& value) const
    {
        return value ? Json(*value) : Json(nullptr);
    }
    template <class Value>
    Json operator()(Value const& value) const
    {
        return value;
    }
};

char const* kindOf(object::PropertyValue const& value)
{
    constexpr char const* names[] = {
        "nothing",      "integer",          "unsigned",          "boolean",          "number",
        "text",         "optional integer", "optional unsigned", "optional boolean", "optional number",
        "optional text"};
    return names[static_cast<std::size_t>(value.kind())];
}

struct JsonOfReference
{
    ifc::IfcFile const& file;

    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(std::string const& address) const { return {{"address", address}}; }
    Json operator()(std::shared_ptr<fc::FcBase const> const& entity) const
    {
        if (!entity)
            return nullptr;
        auto const label = ObjectLabel::of(*entity);
        return {{"id", file.idOf(entity->getIndex())},
                {"class", label.className},
                {"globalId", label.globalId},
                {"name", label.name}};
    }
};

Json asJson(ifc::IfcFile const& file, EntityProperty const& property)
{
    Json node = {
        {"path", property.path},     {"localId", property.localId},
        {"label", property.label},   {"description", property.description},
        {"group", property.isGroup}, {"reference", std::visit(JsonOfReference{file}, property.reference)}};
    if (!property.isGroup) {
        node["kind"] = kindOf(property.value);
        node["value"] = std::visit(JsonOfValue(), property.value.variant());
        node["text"] = property.text;
        node["unit"] = property.unit;
        node["readOnly"] = property.isReadOnly;
        node["emptyAllowed"] = property.isEmptyAllowed;
        node["choices"] = property.choices;
    }
    Json children = Json::array();
    for (EntityProperty const& child : property.children)
        children.push_back(asJson(file, child));
    node["children"] = std::move(children);
    return node;
}

void printAsJson(ifc::IfcFile const& file, fc::FcBase const& entity, std::vector<EntityProperty> const& tree,
                 bool onOneLine)
{
    Json document = {{"id", file.idOf(entity.getIndex())},
                     {"class", entity.getEntityName()},
                     {"globalId", ObjectLabel::of(entity).globalId},
                     {"properties", Json::array()}};
    for (EntityProperty const& property : tree)
        document["properties"].push_back(asJson(file, property));
    printJson(document, onOneLine);
}

void appendRows(EntityProperty const& property, std::size_t depth,
                std::vector<std::vector<std::string>>& rows)
{
    rows.push_back({std::string(2 * depth, ' ') + property.label, property.text, property.path});
    for (EntityProperty const& child : property.children)
        appendRows(child, depth + 1, rows);
}

void printAsText(ifc::IfcFile const& file, fc::FcBase const& entity, std::vector<EntityProperty> const& tree)
{
    std::cout << '#' << file.idOf(entity.getIndex()) << "  " << entity.getEntityName() << '\n';
    std::vector<std::vector<std::string>> rows;
    for (EntityProperty const& property : tree)
        appendRows(property, 0, rows);
    printTable(rows);
}

void print(ifc::IfcFile const& file, std::shared_ptr<fc::FcBase> const& entity, EntityOptions const& options)
{
    auto const tree = EntityProperties(file.data(), entity).tree();
    if (options.format == Format::Json)
        printAsJson(file, *entity, tree, options.all);
    else
        printAsText(file, *entity, tree);
}

// --- All entities -----------------------------------------------------------------------------------

ExitCode printAll(ifc::IfcFile const& file, EntityOptions const& options)
{
    fc::Data& data = *file.data();
    for (fc::EntityIndex index = 0; index < data.entityCount(); ++index) {
        auto const entity = data.entity(index);
        if (!entity)
            continue;
        print(file, entity, options);
        releaseIfMany(data);
    }
    return ExitCode::Success;
}

// --- Changing ---------------------------------------------------------------------------------------

struct Assignment
{
    std::string path;
    std::string text;
};

/// Paths hold names, and names may hold "=": the first one that ends a path counts.
std::optional<Assignment> findAssignment(EntityProperties const& properties, std::string const& argument)
{
    for (auto end = argument.find('='); end != std::string::npos; end = argument.find('=', end + 1)) {
        if (properties.hasPath(argument.substr(0, end)))
            return Assignment{argument.substr(0, end), argument.substr(end + 1)};
    }
    return std::nullopt;
}

ExitCode setAndSave(ifc::IfcFile& file, std::shared_ptr<fc::FcBase> const& entity,
                    EntityOptions const& options)
{
    EntityProperties properties(file.data(), entity);
    bool isRefused = false;
    for (std::string const& argument : options.assignments) {
        auto const assignment = findAssignment(properties, argument);
        if (!assignment) {
            std::cerr << "qev-ifc: there is no property for " << argument << '\n';
            return ExitCode::NothingFound;
        }
        if (auto const reason = properties.set(assignment->path, assignment->text)) {
            std::cout << "refused: " << assignment->path << ": " << *reason << '\n';
            isRefused = true;
        }
    }
    ExitCode const saved = saveFile(file, options.output);
    return saved != ExitCode::Success ? saved : isRefused ? ExitCode::RefusedEdit : ExitCode::Success;
}

std::shared_ptr<fc::FcBase> findEntity(ifc::IfcFile const& file, EntityOptions const& options)
{
    auto entity = options.id ? file.entityFromId(*options.id) : file.entityFromGlobalId(options.globalId);
    if (!entity) {
        std::cerr << "qev-ifc: there is no entity ";
        if (options.id)
            std::cerr << '#' << *options.id << '\n';
        else
            std::cerr << "with the GlobalId " << options.globalId << '\n';
    }
    return entity;
}

} // namespace

ExitCode runEntity(EntityOptions const& options)
{
    if (options.assignments.empty() != options.output.empty() ||
        (options.all && !options.assignments.empty())) {
        std::cerr << "qev-ifc: --set and --output belong together, and to one entity\n";
        return ExitCode::BadUsage;
    }
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    if (options.all)
        return printAll(*file, options);
    auto const entity = findEntity(*file, options);
    if (!entity)
        return ExitCode::NothingFound;
    if (!options.assignments.empty())
        return setAndSave(*file, entity, options);
    print(*file, entity, options);
    return ExitCode::Success;
}

} // namespace qev::application
