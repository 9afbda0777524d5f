#pragma once

#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/FcBase.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>

/// What the generated sources need to say what their classes are.
namespace qev::fc {

/// The attributes of a base class with those of the class itself behind them, \p Count in all.
template <std::size_t Count>
std::array<AttributeDescriptor const*, Count>
joinedAttributes(std::span<AttributeDescriptor const* const> inherited,
                 std::span<AttributeDescriptor const> own)
{
    std::array<AttributeDescriptor const*, Count> joined{};
    std::size_t next = 0;
    for (AttributeDescriptor const* const attribute : inherited)
        joined[next++] = attribute;
    for (AttributeDescriptor const& attribute : own)
        joined[next++] = &attribute;
    return joined;
}

/// A new object of class \p T, owned by way of its base: one kind of owner for all classes keeps the build
/// quick.
template <class T>
std::shared_ptr<FcBase> createEntity()
{
    return std::shared_ptr<FcBase>(static_cast<FcBase*>(new T));
}

/// The schema's name of an enumeration item, null for none.
template <class Enumeration>
char const* itemText(std::optional<Enumeration> const& item)
{
    return item ? enumerationDescriptor(*item).items[static_cast<std::size_t>(*item)].data() : nullptr;
}

} // namespace qev::fc
