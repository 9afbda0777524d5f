#include "FoundationClasses/EntityRange.h"

#include "FoundationClasses/Data.h"

namespace qev::fc {

EntityIterator::EntityIterator(Data const& data, std::shared_ptr<std::vector<EntityIndex> const> indices,
                               std::size_t position)
    : m_data(&data)
    , m_indices(std::move(indices))
    , m_position(position)
{
}

std::shared_ptr<FcBase> EntityIterator::operator*() const { return m_data->entity((*m_indices)[m_position]); }

EntityIterator& EntityIterator::operator++()
{
    ++m_position;
    return *this;
}

EntityIterator EntityIterator::operator++(int)
{
    EntityIterator before = *this;
    ++m_position;
    return before;
}

} // namespace qev::fc
