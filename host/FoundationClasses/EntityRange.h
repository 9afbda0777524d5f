#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace qev::fc {

class Data;
class FcBase;

/// Walks entities of a model, making an object of each only when it is looked at.
class HOSTFOUNDATIONCLASSES_EXPORT EntityIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::shared_ptr<FcBase>;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = value_type;

    EntityIterator() = default;
    EntityIterator(Data const& data, std::shared_ptr<std::vector<EntityIndex> const> indices,
                   std::size_t position);

    [[nodiscard]] std::shared_ptr<FcBase> operator*() const;
    EntityIterator& operator++();
    EntityIterator operator++(int);
    /// The place of the entity, without making an object of it.
    [[nodiscard]] EntityIndex index() const { return (*m_indices)[m_position]; }

    friend bool operator==(EntityIterator const& a, EntityIterator const& b)
    {
        return a.m_position == b.m_position;
    }

private:
    Data const* m_data = nullptr;
    std::shared_ptr<std::vector<EntityIndex> const> m_indices;
    std::size_t m_position = 0;
};

/// The entities of one class as a range of `std::shared_ptr<T>`.
template <class T>
class EntityRange
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = std::shared_ptr<T>;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = value_type;

        Iterator() = default;
        explicit Iterator(EntityIterator iterator)
            : m_iterator(std::move(iterator))
        {
        }
        std::shared_ptr<T> operator*() const { return std::static_pointer_cast<T>(*m_iterator); }
        Iterator& operator++()
        {
            ++m_iterator;
            return *this;
        }
        Iterator operator++(int)
        {
            auto before = *this;
            ++m_iterator;
            return before;
        }
        friend bool operator==(Iterator const& a, Iterator const& b) = default;

    private:
        EntityIterator m_iterator;
    };

    EntityRange(EntityIterator begin, EntityIterator end)
        : m_begin(std::move(begin))
        , m_end(std::move(end))
    {
    }
    [[nodiscard]] Iterator begin() const { return Iterator(m_begin); }
    [[nodiscard]] Iterator end() const { return Iterator(m_end); }
    [[nodiscard]] bool empty() const { return begin() == end(); }

private:
    EntityIterator m_begin;
    EntityIterator m_end;
};

} // namespace qev::fc
