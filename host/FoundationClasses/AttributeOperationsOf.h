#pragma once

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeValues.h"

namespace qev::fc {

/// The operations of `Attribute<T>`. Plain functions rather than lambdas, and one kind of control block for all
/// copies, because they are compiled for several hundred types.
template <class T>
struct AttributeOperationsOf
{
    static T const& valueOf(AttributeBase const& attribute)
    {
        return static_cast<Attribute<T> const&>(attribute).get();
    }

    static T& rawValueOf(AttributeBase& attribute) { return static_cast<Attribute<T>&>(attribute).raw(); }

    static void read(AttributeBase& attribute, AttributeDescriptor const& descriptor, step::StepValue const& value,
                     AttributeReader& reader)
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

    static std::optional<std::string> text(AttributeBase const& attribute, AttributeDescriptor const& descriptor)
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

/// Included by generated sources alone, which name every type an attribute may have.
template <class T>
AttributeOperations const& attributeOperations()
{
    return AttributeOperationsOf<T>::operations;
}

} // namespace qev::fc
