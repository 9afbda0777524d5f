#include "Format/Ifc/Schema/Entity.h"

#include <algorithm>

namespace qev::ifc::def::schema {

Entity::Entity(std::string_view name)
    : ObjectBase(name)
{
}

Entity::~Entity() = default;

bool Entity::isA(Entity const& other) const
{
    return other.m_firstNumber <= m_firstNumber && m_firstNumber <= other.m_lastNumber;
}

std::vector<Attribute const*> const& Entity::attributes() const
{
    if (m_attributesFormed.load(std::memory_order_acquire))
        return m_attributes;
    std::scoped_lock const lock(m_attributesMutex);
    if (m_attributesFormed.load(std::memory_order_relaxed))
        return m_attributes;
    if (m_supertype)
        m_attributes = m_supertype->attributes();
    for (Attribute const& attribute : m_ownAttributes)
        m_attributes.push_back(&attribute);
    m_attributesFormed.store(true, std::memory_order_release);
    return m_attributes;
}

Attribute const* Entity::findAttribute(std::string_view attributeName) const
{
    auto const& all = attributes();
    auto const found = std::find_if(all.begin(), all.end(), [attributeName](Attribute const* attribute) {
        return attribute->name() == attributeName;
    });
    return found == all.end() ? nullptr : *found;
}

bool Entity::isDerived(Attribute const& attribute) const
{
    for (Entity const* entity = this; entity; entity = entity->m_supertype) {
        auto const& derived = entity->m_derivedAttributes;
        if (std::find(derived.begin(), derived.end(), &attribute) != derived.end())
            return true;
    }
    return false;
}

} // namespace qev::ifc::def::schema
