#include "Format/Ifc/Schema/VersionSchema.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/MappingText.h"

namespace qev::ifc {

namespace {

std::size_t classCount(std::vector<VersionSchema::Source> const& sources)
{
    std::size_t count = 0;
    for (VersionSchema::Source const& source : sources)
        count += source.schema->entities().size();
    return count;
}

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
    , m_keywords(classCount(sources))
{
    for (Source const& source : sources)
        addClasses(source);
    chooseClassesForNewObjects();
}

VersionSchema::~VersionSchema() = default;

std::uint16_t VersionSchema::classOf(std::string_view keywordUpper) const
{
    std::uint16_t const position = m_keywords.find(keywordUpper);
    return position == KeywordIndex::notFound ? std::uint16_t(0) : m_mappings[position].classNumber();
}

ClassMapping const* VersionSchema::find(std::string_view keywordUpper) const
{
    std::uint16_t const position = m_keywords.find(keywordUpper);
    return position == KeywordIndex::notFound ? nullptr : &m_mappings[position];
}

ClassMapping const* VersionSchema::forNewObject(unsigned int classNumber) const
{
    if (classNumber >= m_forNewObjects.size())
        return nullptr;
    std::uint16_t const position = m_forNewObjects[classNumber];
    return position == KeywordIndex::notFound ? nullptr : &m_mappings[position];
}

std::optional<std::string> VersionSchema::substituteItem(def::schema::DataTypeEnum const& target,
                                                         std::string_view item)
{
    for (std::string_view const candidate :
         {item, std::string_view("USERDEFINED"), std::string_view("NOTDEFINED")}) {
        if (target.hasValue(candidate))
            return std::string(candidate);
    }
    return std::nullopt;
}

void VersionSchema::addClasses(Source const& source)
{
    MappingTable const table = parseMapping(source.mappingText);
    for (def::TextError const& error : table.errors)
        assert::report(source.schema->name() + ", line " + std::to_string(error.line) + ": " + error.message,
                       "qev::ifc::VersionSchema::addClasses", "Format/Ifc/Schema/VersionSchema");
    for (def::schema::Entity const* const entity : source.schema->entities()) {
        std::uint16_t const known = m_keywords.find(entity->nameUpper());
        if (known == KeywordIndex::notFound) {
            m_keywords.add(entity->nameUpper(), static_cast<std::uint16_t>(m_mappings.size()));
            m_mappings.push_back(mappingOf(*entity, table));
        } else if (m_mappings[known].fileEntity().isAbstract() && !entity->isAbstract())
            m_mappings[known] = mappingOf(*entity, table);
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
    m_forNewObjects.assign(m_model.entities().size() + 1, KeywordIndex::notFound);
    for (std::size_t number = 1; number < m_forNewObjects.size(); ++number) {
        auto const* level = m_model.entityFromNumber(static_cast<unsigned int>(number));
        for (; level; level = level->supertype()) {
            std::uint16_t const position = m_keywords.find(level->nameUpper());
            if (position == KeywordIndex::notFound)
                continue;
            ClassMapping const& mapping = m_mappings[position];
            if (!mapping.fileEntity().isAbstract() && mapping.modelEntity() == level) {
                m_forNewObjects[number] = position;
                break;
            }
        }
    }
}

} // namespace qev::ifc
