#include "Format/Ifc/Schema/VersionSchema.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/MappingText.h"

namespace qev::ifc {

namespace {

// The name in the model of an attribute of the file. The line for the nearest superclass counts.
std::string_view modelName(def::schema::Entity const& entity, std::string_view attribute,
                           MappingTable const& table)
{
    for (def::schema::Entity const* level = &entity; level; level = level->supertype()) {
        auto const renamed = table.renamedAttributes.find(level->name());
        if (renamed == table.renamedAttributes.end())
            continue;
        auto const found = renamed->second.find(attribute);
        if (found != renamed->second.end())
            return found->second;
    }
    return attribute;
}

} // namespace

VersionSchema::VersionSchema(def::schema::Schema const& model, std::vector<Source> const& sources)
    : m_model(model)
    , m_file(*sources.front().schema)
{
    for (Source const& source : sources)
        addClasses(source);
    chooseClassesForNewObjects();
}

VersionSchema::~VersionSchema() = default;

ClassMapping const* VersionSchema::find(std::string_view keywordUpper) const
{
    auto const found = m_positions.find(keywordUpper);
    return found == m_positions.end() ? nullptr : &m_mappings[found->second];
}

ClassMapping const* VersionSchema::forNewObject(unsigned int classNumber) const
{
    if (classNumber >= m_forNewObjects.size())
        return nullptr;
    auto const position = m_forNewObjects[classNumber];
    return position ? &m_mappings[*position] : nullptr;
}

void VersionSchema::addClasses(Source const& source)
{
    MappingTable const table = parseMapping(source.mappingText);
    for (def::TextError const& error : table.errors)
        assert::report(source.schema->name() + ", line " + std::to_string(error.line) + ": " + error.message,
                       "qev::ifc::VersionSchema::addClasses", "Format/Ifc/Schema/VersionSchema");
    for (def::schema::Entity const* const entity : source.schema->entities()) {
        auto const [place, isNew] = m_positions.emplace(entity->nameUpper(), m_mappings.size());
        if (isNew)
            m_mappings.push_back(mappingOf(*entity, table));
        else if (m_mappings[place->second].fileEntity().isAbstract() && !entity->isAbstract())
            m_mappings[place->second] = mappingOf(*entity, table);
    }
}

ClassMapping VersionSchema::mappingOf(def::schema::Entity const& entity, MappingTable const& table) const
{
    ClassMapping mapping;
    mapping.m_fileEntity = &entity;
    mapping.m_modelEntity = m_model.findEntity(entity.nameUpper());
    mapping.m_grade = mapping.m_modelEntity ? ClassMapping::Grade::Same : ClassMapping::Grade::None;
    auto const nearest = table.nearestClasses.find(entity.name());
    if (nearest != table.nearestClasses.end()) {
        mapping.m_modelEntity = m_model.findEntityByName(nearest->second.name);
        mapping.m_grade = nearest->second.grade;
    }
    if (mapping.m_modelEntity && !mapping.m_modelEntity->isAbstract())
        mapping.m_classNumber = static_cast<std::uint16_t>(mapping.m_modelEntity->firstNumber());
    pairSlots(mapping, table);
    return mapping;
}

void VersionSchema::pairSlots(ClassMapping& mapping, MappingTable const& table) const
{
    auto const& fileAttributes = mapping.m_fileEntity->attributes();
    mapping.m_modelSlots.assign(fileAttributes.size(), ClassMapping::noSlot);
    if (!mapping.m_modelEntity)
        return;
    auto const& modelAttributes = mapping.m_modelEntity->attributes();
    mapping.m_fileSlots.assign(modelAttributes.size(), ClassMapping::noSlot);
    mapping.m_isIdentity = fileAttributes.size() == modelAttributes.size();
    for (std::size_t fileSlot = 0; fileSlot < fileAttributes.size(); ++fileSlot) {
        std::string_view const name =
            modelName(*mapping.m_fileEntity, fileAttributes[fileSlot]->name(), table);
        for (std::size_t modelSlot = 0; modelSlot < modelAttributes.size(); ++modelSlot) {
            if (modelAttributes[modelSlot]->name() != name ||
                mapping.m_fileSlots[modelSlot] != ClassMapping::noSlot)
                continue;
            mapping.m_fileSlots[modelSlot] = static_cast<std::int16_t>(fileSlot);
            mapping.m_modelSlots[fileSlot] = static_cast<std::int16_t>(modelSlot);
            break;
        }
        mapping.m_isIdentity =
            mapping.m_isIdentity && mapping.m_modelSlots[fileSlot] == static_cast<int>(fileSlot);
    }
}

void VersionSchema::chooseClassesForNewObjects()
{
    m_forNewObjects.resize(m_model.entities().size() + 1);
    for (std::size_t number = 1; number < m_forNewObjects.size(); ++number) {
        auto const* level = m_model.entityFromNumber(static_cast<unsigned int>(number));
        for (; level; level = level->supertype()) {
            auto const found = m_positions.find(level->nameUpper());
            if (found == m_positions.end())
                continue;
            ClassMapping const& mapping = m_mappings[found->second];
            if (!mapping.fileEntity().isAbstract() && mapping.modelEntity() == level) {
                m_forNewObjects[number] = found->second;
                break;
            }
        }
    }
}

} // namespace qev::ifc
