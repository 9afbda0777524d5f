#include "Format/Ifc/Schema/Schema.h"

#include "Core/String/Ascii.h"
#include "Core/String/Hash.h"
#include "Format/Ifc/Schema/Type.h"

#include <algorithm>
#include <tuple>
#include <typeinfo>

namespace qev::ifc::def::schema {

namespace {

using NameKey = std::tuple<std::uint32_t, std::size_t, std::string_view>;

NameKey keyOf(ObjectBase const& object)
{
    return {object.hash(), object.nameUpper().size(), object.nameUpper()};
}

void sortByName(std::vector<Entity const*>& entities)
{
    std::sort(entities.begin(), entities.end(),
              [](Entity const* left, Entity const* right) { return left->name() < right->name(); });
}

} // namespace

Schema::Schema() = default;

Schema::~Schema() = default;

ObjectBase const* Schema::find(std::string_view nameUpper) const
{
    return find(nameUpper, str::fnv1a(nameUpper));
}

ObjectBase const* Schema::find(std::string_view nameUpper, std::uint32_t hash) const
{
    NameKey const key{hash, nameUpper.size(), nameUpper};
    auto const found = std::lower_bound(
        m_sorted.begin(), m_sorted.end(), key,
        [](ObjectBase const* object, NameKey const& wanted) { return keyOf(*object) < wanted; });
    return found != m_sorted.end() && keyOf(**found) == key ? *found : nullptr;
}

Entity const* Schema::findEntity(std::string_view nameUpper) const
{
    ObjectBase const* const object = find(nameUpper);
    return object && typeid(*object) == typeid(Entity) ? static_cast<Entity const*>(object) : nullptr;
}

Entity const* Schema::findEntityByName(std::string_view entityName) const
{
    Entity const* const entity = findEntity(str::toUpper(entityName));
    return entity && entity->name() == entityName ? entity : nullptr;
}

Entity const* Schema::entityFromNumber(unsigned int number) const
{
    return number == 0 || number > m_entitiesByNumber.size() ? nullptr : m_entitiesByNumber[number - 1];
}

void Schema::sortNames()
{
    m_sorted.clear();
    for (auto const& object : m_objects)
        m_sorted.push_back(object.get());
    std::sort(m_sorted.begin(), m_sorted.end(),
              [](ObjectBase const* left, ObjectBase const* right) { return keyOf(*left) < keyOf(*right); });
}

void Schema::numberEntities()
{
    // A class is numbered when it is first met and closed when all of its subclasses are.
    struct Step
    {
        Entity* entity;
        std::size_t nextSubtype;
    };
    std::vector<Step> path;
    m_entitiesByNumber.clear();

    auto const enter = [this, &path](Entity const* entity) {
        auto* const own = const_cast<Entity*>(entity);
        m_entitiesByNumber.push_back(entity);
        own->m_firstNumber = static_cast<unsigned int>(m_entitiesByNumber.size());
        sortByName(own->m_subtypes);
        path.push_back({own, 0});
    };
    sortByName(m_roots);
    for (Entity const* const root : m_roots) {
        enter(root);
        while (!path.empty()) {
            Step& step = path.back();
            if (step.nextSubtype < step.entity->m_subtypes.size()) {
                enter(step.entity->m_subtypes[step.nextSubtype++]);
                continue;
            }
            step.entity->m_lastNumber = static_cast<unsigned int>(m_entitiesByNumber.size());
            path.pop_back();
        }
    }
}

} // namespace qev::ifc::def::schema
