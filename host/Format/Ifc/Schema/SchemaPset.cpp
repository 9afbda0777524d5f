#include "Format/Ifc/Schema/SchemaPset.h"

#include "Format/Ifc/Schema/DefinitionMerge.h"

#include <algorithm>
#include <unordered_set>

namespace qev::ifc::def {

namespace {

bool admits(SchemaPset::ContextFilter const& filter, SchemaPropertySetDefinitionsContext const& context)
{
    return !filter || filter(context);
}

// The names by which applicable classes mean an entity: its own, and those of its type class.
std::vector<std::string> namesOfClass(schema::Entity const& entity)
{
    std::string const& name = entity.name();
    std::vector<std::string> names{name, name + "Type"};
    constexpr std::string_view prefix = "Ifc";
    // The type classes near the root put the word in front: IfcTypeObject, IfcTypeProduct, IfcTypeProcess.
    if (name.starts_with(prefix))
        names.push_back("IfcType" + name.substr(prefix.size()));
    return names;
}

void appendPositions(std::vector<std::size_t>& positions, std::vector<std::size_t> const& more)
{
    positions.insert(positions.end(), more.begin(), more.end());
}

std::vector<std::size_t> positionsFor(SchemaPropertySetDefinitions const& definitions,
                                      schema::Entity const& entity, bool withSupertypes)
{
    std::vector<std::size_t> positions = definitions.positionsOfUnrestricted();
    for (schema::Entity const* level = &entity; level;
         level = withSupertypes ? level->supertype() : nullptr) {
        for (std::string const& name : namesOfClass(*level))
            appendPositions(positions, definitions.positionsOfClass(name));
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    return positions;
}

} // namespace

SchemaPset::SchemaPset(std::unique_ptr<schema::Schema const> schema)
    : m_schema(std::move(schema))
{
}

SchemaPset::~SchemaPset() = default;

xml::SetDef const* SchemaPset::pXmlSetFromName(std::string const& name, ContextFilter const& filter) const
{
    for (auto const& context : m_contexts) {
        if (!admits(filter, context->description))
            continue;
        if (xml::SetDef const* const set = std::as_const(context->definitions).find(name))
            return set;
    }
    return nullptr;
}

std::vector<xml::SetDef const*> SchemaPset::getXmlSetsAllToEntity(schema::Entity const& entity,
                                                                  bool withSupertypes,
                                                                  ContextFilter const& filter) const
{
    std::vector<xml::SetDef const*> result;
    std::unordered_set<std::string_view> names;
    for (auto const& context : m_contexts) {
        if (!admits(filter, context->description))
            continue;
        for (std::size_t const position : positionsFor(context->definitions, entity, withSupertypes)) {
            xml::SetDef const& set = *context->definitions.sets()[position];
            if (names.insert(set.name).second)
                result.push_back(&set);
        }
    }
    return result;
}

void SchemaPset::forEachDefinition(DefinitionVisitor const& visitor, ContextFilter const& filter) const
{
    for (auto const& context : m_contexts) {
        if (admits(filter, context->description))
            visitor(context->description, context->definitions);
    }
}

void SchemaPset::addDefinitions(std::string const& contextName, SchemaPropertySetDefinitions definitions)
{
    addDefinitions(SchemaPropertySetDefinitionsContext{contextName, false}, std::move(definitions));
}

void SchemaPset::addDefinitions(SchemaPropertySetDefinitionsContext const& context,
                                SchemaPropertySetDefinitions definitions)
{
    for (std::unique_ptr<xml::SetDef>& set : definitions.takeSets()) {
        if (xml::SetDef* const known = findSet(set->name))
            mergeTexts(*known, *set);
        else
            contextNamed(context).definitions.add(std::move(set));
    }
}

xml::SetDef* SchemaPset::findSet(std::string const& name)
{
    for (auto const& context : m_contexts) {
        if (xml::SetDef* const set = context->definitions.find(name))
            return set;
    }
    return nullptr;
}

SchemaPset::Context& SchemaPset::contextNamed(SchemaPropertySetDefinitionsContext const& description)
{
    for (auto const& context : m_contexts) {
        if (context->description.name == description.name)
            return *context;
    }
    m_contexts.push_back(std::make_unique<Context>());
    m_contexts.back()->description = description;
    return *m_contexts.back();
}

} // namespace qev::ifc::def
