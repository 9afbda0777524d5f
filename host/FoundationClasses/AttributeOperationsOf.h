#pragma once

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeValues.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <type_traits>

namespace qev::fc {

/// The operations of `Attribute<T>`. Plain functions rather than lambdas, and one kind of control block for
/// all copies, because they are compiled for several hundred types.
template <class T>
struct AttributeOperationsOf
{
    static T const& valueOf(AttributeBase const& attribute)
    {
        return static_cast<Attribute<T> const&>(attribute).get();
    }

    static T& rawValueOf(AttributeBase& attribute) { return static_cast<Attribute<T>&>(attribute).raw(); }

    static void read(AttributeBase& attribute, AttributeDescriptor const& descriptor,
                     step::StepValue const& value, AttributeReader& reader)
    {
        T& target = rawValueOf(attribute);
        target = T{};
        if (!value.isUnset() && value.kind() != step::StepValue::Kind::Derived)
            values::read(target, descriptor, value, reader);
    }

    static step::StepValue write(AttributeBase const& attribute, AttributeDescriptor const& descriptor,
                                 AttributeWriter const& writer)
    {
        T const& value = valueOf(attribute);
        return values::isUnset(value) ? step::StepValue() : values::write(value, descriptor, writer);
    }

    static std::optional<std::string> text(AttributeBase const& attribute,
                                           AttributeDescriptor const& descriptor)
    {
        return values::text(valueOf(attribute), descriptor);
    }

    static void visitReferences(AttributeBase const& attribute,
                                std::function<void(ReferenceBase const&)> const& visit)
    {
        values::visitReferences(valueOf(attribute), visit);
    }

    static void destroyCopy(void const* copy) { delete static_cast<T const*>(copy); }

    static std::shared_ptr<void const> snapshot(AttributeBase const& attribute)
    {
        return std::shared_ptr<void const>(static_cast<void const*>(new T(valueOf(attribute))), &destroyCopy);
    }

    static void restore(AttributeBase& attribute, void const* value)
    {
        rawValueOf(attribute) = *static_cast<T const*>(value);
    }

    static bool equals(AttributeBase const& attribute, void const* value)
    {
        return valueOf(attribute) == *static_cast<T const*>(value);
    }

    static bool isUnset(AttributeBase const& attribute) { return values::isUnset(valueOf(attribute)); }

    static void leaveModel(AttributeBase& attribute) { values::leaveModel(rawValueOf(attribute)); }

    static constexpr AttributeOperations operations = {
        .read = &read,
        .write = &write,
        .text = &text,
        .visitReferences = &visitReferences,
        .snapshot = &snapshot,
        .restore = &restore,
        .equals = &equals,
        .isUnset = &isUnset,
        .leaveModel = &leaveModel,
    };
};

/// The operations of an attribute with an item of an enumeration, which go by the position of the item: more
/// than two hundred types are alike in all but their name.
template <class E>
requires(std::is_enum_v<E> && !std::same_as<E, Logical>) struct AttributeOperationsOf<std::optional<E>>
{
    using Item = std::optional<std::uint16_t>;

    static Item itemOf(AttributeBase const& attribute)
    {
        auto const& value = static_cast<Attribute<std::optional<E>> const&>(attribute).get();
        return value ? Item(static_cast<std::uint16_t>(*value)) : Item();
    }

    static void setItem(AttributeBase& attribute, Item item)
    {
        auto& value = static_cast<Attribute<std::optional<E>>&>(attribute).raw();
        if (item)
            value = static_cast<E>(*item);
        else
            value.reset();
    }

    static void read(AttributeBase& attribute, AttributeDescriptor const& descriptor,
                     step::StepValue const& value, AttributeReader& reader)
    {
        setItem(attribute, values::readItem(descriptor, value, reader));
    }

    static step::StepValue write(AttributeBase const& attribute, AttributeDescriptor const& descriptor,
                                 AttributeWriter const&)
    {
        return values::writeItem(itemOf(attribute), descriptor);
    }

    static std::optional<std::string> text(AttributeBase const& attribute,
                                           AttributeDescriptor const& descriptor)
    {
        return values::textOfItem(itemOf(attribute), descriptor);
    }

    static std::shared_ptr<void const> snapshot(AttributeBase const& attribute)
    {
        return std::make_shared<Item>(itemOf(attribute));
    }

    static void restore(AttributeBase& attribute, void const* value)
    {
        setItem(attribute, *static_cast<Item const*>(value));
    }

    static bool equals(AttributeBase const& attribute, void const* value)
    {
        return itemOf(attribute) == *static_cast<Item const*>(value);
    }

    static bool isUnset(AttributeBase const& attribute) { return !itemOf(attribute); }

    static constexpr AttributeOperations operations = {
        .read = &read,
        .write = &write,
        .text = &text,
        .visitReferences = &values::visitNoReferences,
        .snapshot = &snapshot,
        .restore = &restore,
        .equals = &equals,
        .isUnset = &isUnset,
        .leaveModel = &values::leaveNoModel,
    };
};

/// Included by generated sources alone, which name every type an attribute may have.
template <class T>
AttributeOperations const& attributeOperations()
{
    return AttributeOperationsOf<T>::operations;
}

} // namespace qev::fc
