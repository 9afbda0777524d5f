#pragma once

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/AttributeValues.h"

namespace qev::fc {

/// A copy behind one kind of control block for all types, which is quicker to compile than one for each.
template <class T>
std::shared_ptr<void const> ownedCopy(T const& value)
{
    void (*const destroy)(void const*) = [](void const* copy) { delete static_cast<T const*>(copy); };
    return std::shared_ptr<void const>(static_cast<void const*>(new T(value)), destroy);
}

/// Included by generated sources alone, which name every type an attribute may have.
template <class T>
AttributeOperations const& attributeOperations()
{
    static constexpr AttributeOperations operations = {
        .read =
            [](AttributeBase& attribute, AttributeDescriptor const& descriptor, step::StepValue const& value,
               AttributeReader& reader) {
                T& target = static_cast<Attribute<T>&>(attribute).raw();
                target = T{};
                if (!value.isUnset() && value.kind() != step::StepValue::Kind::Derived)
                    values::read(target, descriptor, value, reader);
            },
        .write =
            [](AttributeBase const& attribute, AttributeDescriptor const& descriptor, AttributeWriter const& writer) {
                T const& value = static_cast<Attribute<T> const&>(attribute).get();
                return values::isUnset(value) ? step::StepValue() : values::write(value, descriptor, writer);
            },
        .text =
            [](AttributeBase const& attribute, AttributeDescriptor const& descriptor) {
                return values::text(static_cast<Attribute<T> const&>(attribute).get(), descriptor);
            },
        .visitReferences =
            [](AttributeBase const& attribute, std::function<void(ReferenceBase const&)> const& visit) {
                values::visitReferences(static_cast<Attribute<T> const&>(attribute).get(), visit);
            },
        .snapshot = [](AttributeBase const& attribute) -> std::shared_ptr<void const> {
            return ownedCopy(static_cast<Attribute<T> const&>(attribute).get());
        },
        .restore =
            [](AttributeBase& attribute, void const* value) {
                static_cast<Attribute<T>&>(attribute).raw() = *static_cast<T const*>(value);
            },
        .equals =
            [](AttributeBase const& attribute, void const* value) {
                return static_cast<Attribute<T> const&>(attribute).get() == *static_cast<T const*>(value);
            },
        .isUnset =
            [](AttributeBase const& attribute) {
                return values::isUnset(static_cast<Attribute<T> const&>(attribute).get());
            },
        .leaveModel =
            [](AttributeBase& attribute) { values::leaveModel(static_cast<Attribute<T>&>(attribute).raw()); },
    };
    return operations;
}

} // namespace qev::fc
