#include "FoundationClasses/Reference.h"

#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"

namespace qev::fc {

ReferenceBase::ReferenceBase(std::shared_ptr<FcBase> entity)
{
    if (!entity)
        return;
    if (entity->getData()) {
        m_data = entity->getData();
        m_index = entity->getIndex();
    } else {
        m_entity = std::move(entity);
    }
}

bool ReferenceBase::isSet() const
{
    EntityIndex const place = index();
    if (place == noEntity)
        return m_entity != nullptr;
    Data const& data = m_entity ? *m_entity->getData() : *m_data;
    return !data.isDeleted(place);
}

std::shared_ptr<FcBase> ReferenceBase::entity() const
{
    if (m_entity)
        return isSet() ? m_entity : nullptr;
    return m_data ? m_data->entity(m_index) : nullptr;
}

EntityIndex ReferenceBase::index() const { return m_entity ? m_entity->getIndex() : m_index; }

void ReferenceBase::leaveModel()
{
    m_entity.reset();
    m_data = nullptr;
    m_index = noEntity;
}

bool operator==(ReferenceBase const& a, ReferenceBase const& b)
{
    if (a.index() == noEntity && b.index() == noEntity)
        return a.m_entity == b.m_entity;
    auto const modelOf = [](ReferenceBase const& reference) -> Data const* {
        return reference.m_entity ? reference.m_entity->getData() : reference.m_data;
    };
    return a.index() == b.index() && modelOf(a) == modelOf(b);
}

void ReferenceListBase::setReferences(std::vector<ReferenceBase> references)
{
    m_references = std::move(references);
    m_isResolved = false;
}

void ReferenceListBase::leaveModel()
{
    for (ReferenceBase& reference : m_references)
        reference.leaveModel();
    m_isResolved = false;
}

void ReferenceListBase::append(ReferenceBase reference)
{
    m_references.push_back(std::move(reference));
    m_isResolved = false;
}

void ReferenceListBase::removeAt(std::size_t position)
{
    m_references.erase(m_references.begin() + static_cast<std::ptrdiff_t>(position));
    m_isResolved = false;
}

} // namespace qev::fc
