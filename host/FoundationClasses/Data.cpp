#include "FoundationClasses/Data.h"

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/EntityClass.h"

#include <algorithm>
#include <map>
#include <span>

namespace qev::fc {

namespace {

/// One attribute by which an entity of some class may be referred to.
struct ReferringAttribute
{
    EntityClass const* entityClass;
    unsigned int slot;
};

bool mayRefer(SelectDescriptor const& select, EntityClass const& target)
{
    return std::any_of(select.members.begin(), select.members.end(), [&target](SelectMember const& member) {
        if (member.select)
            return mayRefer(*member.select, target);
        return member.first != 0 && member.first <= target.idFirst && target.idFirst <= member.last;
    });
}

bool mayRefer(AttributeDescriptor const& attribute, EntityClass const& target)
{
    if (attribute.kind == ValueKind::Select)
        return attribute.select && mayRefer(*attribute.select, target);
    return attribute.kind == ValueKind::Reference && attribute.targetFirst <= target.idFirst &&
           target.idFirst <= attribute.targetLast;
}

std::vector<ReferringAttribute> findReferringAttributes(EntityClass const& target)
{
    std::vector<ReferringAttribute> result;
    for (unsigned int number = 1; number <= FcBase::idLast; ++number) {
        EntityClass const* const candidate = entityClassFromNumber(number);
        std::size_t const inherited = candidate->supertype ? candidate->supertype->attributes.size() : 0;
        for (std::size_t slot = inherited; slot < candidate->attributes.size(); ++slot) {
            if (mayRefer(*candidate->attributes[slot], target))
                result.push_back({candidate, static_cast<unsigned int>(slot)});
        }
    }
    return result;
}

/// The attributes, each at the class that declares it, by which \p target may be referred to.
std::vector<ReferringAttribute> const& referringAttributes(EntityClass const& target)
{
    static std::map<unsigned int, std::vector<ReferringAttribute>> known;
    auto const [position, isNew] = known.try_emplace(target.idFirst);
    if (isNew)
        position->second = findReferringAttributes(target);
    return position->second;
}

/// The number of a class that has entities, 0 for others: a broken file may name an abstract class.
std::uint16_t instantiable(std::uint16_t number)
{
    static std::vector<bool> const hasEntities = [] {
        std::vector<bool> result(FcBase::idLast + 1);
        for (unsigned int i = 1; i <= FcBase::idLast; ++i)
            result[i] = entityClassFromNumber(i)->create != nullptr;
        return result;
    }();
    return number < hasEntities.size() && hasEntities[number] ? number : 0;
}

} // namespace

std::shared_ptr<Data> Data::create(std::unique_ptr<EntitySource> source)
{
    return std::shared_ptr<Data>(new Data(std::move(source)));
}

Data::Data(std::unique_ptr<EntitySource> source)
    : m_source(std::move(source))
    , m_changes(*this)
{
    if (!m_source)
        return;
    m_sourceCount = m_source->count();
    m_deleted.resize(m_sourceCount);
    m_pages.resize((m_sourceCount + pageSize - 1) / pageSize);
}

Data::~Data()
{
    // Objects that somebody still holds must not lead back into this model.
    for (auto const& page : m_pages) {
        if (!page)
            continue;
        for (auto const& object : page->objects) {
            if (!object)
                continue;
            object->m_data = nullptr;
            object->m_index = noEntity;
            if (object.use_count() == 1)
                continue;
            auto const attributes = object->getEntityClass().attributes;
            for (unsigned int slot = 0; slot < attributes.size(); ++slot)
                attributes[slot]->operations->leaveModel(object->attribute(slot));
        }
    }
}

std::uint16_t Data::classNumber(EntityIndex index) const
{
    if (index < m_sourceCount)
        return instantiable(m_source->classNumber(index));
    std::size_t const created = index - m_sourceCount;
    return created < m_createdClasses.size() ? m_createdClasses[created] : std::uint16_t{0};
}

bool Data::isDeleted(EntityIndex index) const { return index >= m_deleted.size() || m_deleted[index]; }

FcBase* Data::existingObject(EntityIndex index) const
{
    if (index >= entityCount())
        return nullptr;
    auto const& page = m_pages[index / pageSize];
    return page ? page->objects[index % pageSize].get() : nullptr;
}

std::shared_ptr<FcBase> Data::entity(EntityIndex index) const
{
    if (isDeleted(index))
        return nullptr;
    if (auto const& page = m_pages[index / pageSize]; page && page->objects[index % pageSize])
        return page->objects[index % pageSize];
    EntityClass const* const entityClass = entityClassFromNumber(classNumber(index));
    if (!entityClass || !entityClass->create || index >= m_sourceCount)
        return nullptr;
    auto object = entityClass->create();
    auto& self = const_cast<Data&>(*this);
    m_source->read(index, self, *object);
    object->m_data = &self;
    object->m_index = index;
    setObject(index, object);
    return object;
}

void Data::setObject(EntityIndex index, std::shared_ptr<FcBase> object) const
{
    auto& page = m_pages[index / pageSize];
    if (!page)
        page = std::make_unique<Page>();
    auto& place = page->objects[index % pageSize];
    m_objectCount += (object ? 1 : 0);
    m_objectCount -= (place ? 1 : 0);
    place = std::move(object);
}

void Data::entityAdd(std::shared_ptr<FcBase> entity, bool)
{
    if (!entity)
        return;
    ChangeLog::Step const step(m_changes, "Add");
    adopt(entity);
}

void Data::adopt(std::shared_ptr<FcBase> const& first)
{
    std::vector<std::shared_ptr<FcBase>> waiting{first};
    std::vector<std::shared_ptr<FcBase>> adopted;
    while (!waiting.empty()) {
        auto const entity = std::move(waiting.back());
        waiting.pop_back();
        if (entity->m_data == this && !m_deleted[entity->m_index])
            continue;
        if (entity->m_data == this) {
            setState(entity->m_index, Present);
        } else if (!entity->m_data) {
            auto const index = static_cast<EntityIndex>(entityCount());
            auto const number = static_cast<std::uint16_t>(entity->getIdFirst());
            m_createdClasses.push_back(number);
            m_deleted.push_back(false);
            if (m_pages.size() * pageSize < entityCount())
                m_pages.emplace_back();
            setObject(index, entity);
            entity->m_data = this;
            entity->m_index = index;
            m_createdByClass[number].push_back(index);
        } else {
            continue;
        }
        m_changes.record({ChangeLog::Kind::Addition, entity});
        entity->forEachEntity([&waiting](std::shared_ptr<FcBase> const& referred) {
            if (!referred->getData())
                waiting.push_back(referred);
        });
        adopted.push_back(entity);
    }
    // Only now do all that they refer to have their places.
    for (auto const& entity : adopted)
        indexAllReferences(*entity, true);
}

bool Data::entityDelete(std::shared_ptr<FcBase> entity)
{
    if (!entity || entity->m_data != this || m_deleted[entity->m_index])
        return false;
    ChangeLog::Step const step(m_changes, "Delete");
    setState(entity->m_index, Deleted);
    m_changes.record({ChangeLog::Kind::Deletion, entity});
    return true;
}

void Data::setState(EntityIndex index, State state)
{
    bool const isDeletion = state == Deleted;
    if (m_deleted[index] == isDeletion)
        return;
    // What refers from a deleted entity does not count, so the indexes are brought up to date while it is
    // present.
    m_deleted[index] = false;
    if (FcBase const* const object = existingObject(index))
        indexAllReferences(*object, !isDeletion);
    m_deleted[index] = isDeletion;
}

std::vector<EntityIndex> Data::indicesFromId(unsigned int first, unsigned int last) const
{
    std::vector<EntityIndex> indices;
    last = std::min(last, FcBase::idLast);
    // Number 0 is no class that has entities: the records that have it cannot become objects.
    for (unsigned int i = std::max(first, 1u); i <= last; ++i) {
        auto const number = static_cast<std::uint16_t>(i);
        if (m_source && instantiable(number) == number)
            m_source->appendRecordsOfClass(number, indices);
        if (auto const created = m_createdByClass.find(number); created != m_createdByClass.end())
            indices.insert(indices.end(), created->second.begin(), created->second.end());
    }
    std::erase_if(indices, [this](EntityIndex index) { return m_deleted[index]; });
    return indices;
}

std::size_t Data::countFromId(unsigned int first, unsigned int last) const
{
    return indicesFromId(first, last).size();
}

std::pair<EntityIterator, EntityIterator> Data::rangeFromId(unsigned int first, unsigned int last)
{
    return std::as_const(*this).rangeFromId(first, last);
}

std::pair<EntityIterator, EntityIterator> Data::rangeFromId(unsigned int first, unsigned int last) const
{
    auto const indices = std::make_shared<std::vector<EntityIndex> const>(indicesFromId(first, last));
    return {EntityIterator(*this, indices, 0), EntityIterator(*this, indices, indices->size())};
}

void Data::visitReferences(EntityIndex index, unsigned int slot,
                           std::function<void(EntityIndex)> const& visit) const
{
    FcBase const* const object = existingObject(index);
    if (!object) {
        if (index < m_sourceCount)
            m_source->forEachReference(index, slot, visit);
        return;
    }
    auto const& operations = *object->getEntityClass().attributes[slot]->operations;
    operations.visitReferences(object->attribute(slot), [&visit](ReferenceBase const& reference) {
        if (reference.index() != noEntity)
            visit(reference.index());
    });
}

std::optional<std::string> Data::attributeText(EntityIndex index, unsigned int slot) const
{
    if (isDeleted(index) || classNumber(index) == 0)
        return std::nullopt;
    std::optional<std::string> text;
    bool const isRecord = index < m_sourceCount && !existingObject(index);
    if (isRecord && m_source->readText(index, slot, text))
        return text;
    auto const object = entity(index);
    if (!object)
        return std::nullopt;
    AttributeDescriptor const& descriptor = *object->getEntityClass().attributes[slot];
    return descriptor.operations->text(object->attribute(slot), descriptor);
}

std::size_t Data::objectsFirst(std::vector<EntityIndex>& entities) const
{
    auto const records = std::stable_partition(entities.begin(), entities.end(),
                                               [this](EntityIndex entity) { return existingObject(entity); });
    return static_cast<std::size_t>(records - entities.begin());
}

std::vector<std::pair<EntityIndex, EntityIndex>> Data::allReferences(std::vector<EntityIndex> relations,
                                                                     unsigned int slot) const
{
    std::vector<std::pair<EntityIndex, EntityIndex>> references;
    std::size_t const objects = objectsFirst(relations);
    for (EntityIndex const relation : std::span(relations).first(objects))
        visitReferences(relation, slot,
                        [&](EntityIndex target) { references.emplace_back(target, relation); });
    if (m_source)
        m_source->appendReferences(std::span(relations).subspan(objects), slot, references);
    return references;
}

std::vector<EntityIndex> Data::referring(EntityIndex target, std::vector<EntityIndex> relations,
                                         unsigned int slot) const
{
    std::vector<EntityIndex> found;
    std::size_t const objects = objectsFirst(relations);
    for (EntityIndex const relation : std::span(relations).first(objects)) {
        bool refers = false;
        visitReferences(relation, slot, [&](EntityIndex other) { refers = refers || other == target; });
        if (refers)
            found.push_back(relation);
    }
    // No record refers to what was created later.
    if (target < m_sourceCount)
        m_source->appendReferring(std::span(relations).subspan(objects), slot, target, found);
    return found;
}

std::vector<EntityIndex> const& Data::relating(EntityIndex target, unsigned int relationFirst,
                                               unsigned int relationLast, unsigned int slot) const
{
    InverseIndex& index = m_inverseIndexes[{relationFirst, relationLast, slot}];
    if (auto const* const known = index.find(target))
        return *known;
    // Who wants to know of a single object does not wait for an index of all. Among many relations, looking
    // for a target takes about a fourth of what the index takes; among few, which may refer to thousands, far
    // less.
    constexpr std::size_t many = 1000;
    auto relations = indicesFromId(relationFirst, relationLast);
    std::size_t const searchesBeforeAll = relations.size() < many ? 16 : 1;
    if (index.knownTargets() >= searchesBeforeAll)
        index.learnAll(allReferences(std::move(relations), slot));
    else
        index.learn(target, referring(target, std::move(relations), slot));
    return *index.find(target);
}

bool Data::isReferenced(EntityIndex target) const
{
    EntityClass const* const targetClass = entityClassFromNumber(classNumber(target));
    if (!targetClass)
        return false;
    auto const& attributes = referringAttributes(*targetClass);
    return std::any_of(attributes.begin(), attributes.end(), [&](ReferringAttribute const& attribute) {
        EntityClass const& referring = *attribute.entityClass;
        return !relating(target, referring.idFirst, referring.idLast, attribute.slot).empty();
    });
}

bool Data::deleteIfUnreferenced(std::shared_ptr<FcBase> const& entity)
{
    return entity && entity->m_data == this && !isReferenced(entity->m_index) && entityDelete(entity);
}

void Data::clearInverseIndexes() { m_inverseIndexes.clear(); }

std::vector<EntityIndex> Data::targetsOf(FcBase const& entity, unsigned int slot)
{
    std::vector<EntityIndex> targets;
    auto const& operations = *entity.getEntityClass().attributes[slot]->operations;
    operations.visitReferences(entity.attribute(slot), [&targets](ReferenceBase const& reference) {
        if (reference.index() != noEntity)
            targets.push_back(reference.index());
    });
    return targets;
}

void Data::indexTargets(FcBase const& entity, unsigned int slot, std::vector<EntityIndex> const& targets,
                        bool add) const
{
    if (targets.empty() || (add && m_deleted[entity.m_index]))
        return;
    unsigned int const number = entity.getIdFirst();
    for (auto& [key, index] : m_inverseIndexes) {
        if (key.slot != slot || number < key.relationFirst || number > key.relationLast)
            continue;
        for (EntityIndex const target : targets) {
            if (add)
                index.add(target, entity.m_index);
            else
                index.remove(target, entity.m_index);
        }
    }
}

void Data::indexReferences(FcBase const& entity, unsigned int slot, bool add) const
{
    indexTargets(entity, slot, targetsOf(entity, slot), add);
}

void Data::indexAllReferences(FcBase const& entity, bool add) const
{
    for (unsigned int slot = 0; slot < entity.getEntityClass().attributes.size(); ++slot)
        indexReferences(entity, slot, add);
}

void Data::attributeWillChange(FcBase& entity, unsigned int slot)
{
    m_changes.begin("Change");
    auto const& operations = *entity.getEntityClass().attributes[slot]->operations;
    bool const wasChanged = (entity.m_changedSlots >> slot & 1) != 0;
    m_pending.push_back({{ChangeLog::Kind::Attribute, entity.shared_from_this(), slot,
                          operations.snapshot(entity.attribute(slot)), wasChanged},
                         targetsOf(entity, slot)});
}

void Data::attributeDidChange(FcBase& entity, unsigned int slot)
{
    bool const hasBegun = !m_pending.empty() && m_pending.back().change.entity.get() == &entity &&
                          m_pending.back().change.slot == slot;
    if (!hasBegun) {
        // The entity came into the model meanwhile, and there is nothing to go back to.
        adoptReferences(entity, entity.attribute(slot));
        indexReferences(entity, slot, true);
        return;
    }
    auto [change, targets] = std::move(m_pending.back());
    m_pending.pop_back();
    auto const& operations = *entity.getEntityClass().attributes[slot]->operations;
    if (!operations.equals(entity.attribute(slot), change.value.get())) {
        entity.m_changedSlots |= std::uint64_t{1} << slot;
        m_changes.record(std::move(change));
        adoptReferences(entity, entity.attribute(slot));
    }
    // Both at the end: who asked meanwhile may have learnt of the former targets or of the new ones.
    indexTargets(entity, slot, targets, false);
    indexReferences(entity, slot, true);
    m_changes.end();
}

void Data::adoptReferences(FcBase const& entity, AttributeBase const& attribute)
{
    auto const& operations = *entity.getEntityClass().attributes[attribute.slot()]->operations;
    operations.visitReferences(attribute, [this](ReferenceBase const& reference) {
        if (auto const referred = reference.entity(); referred && !referred->getData())
            adopt(referred);
    });
}

void Data::notify(std::vector<EntityIndex> const& entities) { fireEvents(changed, entities); }

void Data::releaseUnused()
{
    // An object may be held by the list of another one that is released first, hence the repetition.
    for (bool released = true; released;) {
        released = false;
        for (auto& page : m_pages) {
            if (!page)
                continue;
            bool isEmpty = true;
            for (auto& object : page->objects) {
                if (object && object.use_count() == 1 && object->m_index < m_sourceCount &&
                    object->m_changedSlots == 0 && !m_deleted[object->m_index]) {
                    object.reset();
                    --m_objectCount;
                    released = true;
                }
                isEmpty = isEmpty && !object;
            }
            if (isEmpty)
                page.reset();
        }
    }
}

std::vector<EntityIndex> Data::touchedEntities() const
{
    std::vector<EntityIndex> touched;
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        if (!m_pages[page])
            continue;
        for (auto const& object : m_pages[page]->objects) {
            if (object &&
                (object->m_changedSlots != 0 || isCreated(object->m_index) || m_deleted[object->m_index]))
                touched.push_back(object->m_index);
        }
    }
    return touched;
}

} // namespace qev::fc
