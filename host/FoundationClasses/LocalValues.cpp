#include "FoundationClasses/LocalValues.h"

#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/FcBase.h"
#include "FoundationClasses/PlainAttributeAccess.h"

#include <algorithm>

namespace qev::fc {

namespace {

using step::StepValue;
using Kind = StepValue::Kind;

LocalValue::List listOf(StepValue const& value, AttributeDescriptor const& descriptor);

LocalValue::Variant enumerationOf(StepValue const& value, ValueKind kind)
{
    bool const isTrue = value.textValue() == "T";
    bool const isTruth = isTrue || value.textValue() == "F" || value.textValue() == "U";
    if (kind == ValueKind::Enumeration || !isTruth)
        return value.textValue();
    if (kind == ValueKind::Logical || value.textValue() == "U")
        return LocalValue::LogicalNumber{isTrue ? 1 : value.textValue() == "F" ? 0 : -1};
    return isTrue;
}

LocalValue::Variant textOf(StepValue const& value, AttributeDescriptor const& descriptor)
{
    if (descriptor.typeName == "IfcGloballyUniqueId") {
        if (auto const guid = Guid::fromString(value.textValue()))
            return *guid;
    }
    return value.textValue();
}

LocalValue::Variant variantOf(StepValue const& value, AttributeDescriptor const& descriptor)
{
    switch (value.kind()) {
    case Kind::Integer:
        return value.integerValue();
    case Kind::Real:
        return value.realValue();
    case Kind::Text:
        return textOf(value, descriptor);
    case Kind::Binary:
        return value.textValue();
    case Kind::Enumeration:
        return enumerationOf(value, descriptor.kind);
    case Kind::Typed:
        return variantOf(value.items().front(), descriptor);
    case Kind::List:
        return listOf(value, descriptor);
    default:
        return std::monostate();
    }
}

LocalValue::List listOf(StepValue const& value, AttributeDescriptor const& descriptor)
{
    LocalValue::List list;
    for (StepValue const& item : value.items())
        list.push_back({variantOf(item, descriptor), std::nullopt});
    return list;
}

/// Numbers of a list of integers stand for themselves, without the detour over single values.
LocalValue::Variant integersOf(StepValue const& value)
{
    std::vector<std::int64_t> numbers;
    for (StepValue const& item : value.items())
        numbers.push_back(item.integerValue());
    return numbers;
}

struct StepOfLocalValue
{
    AttributeDescriptor const& descriptor;
    using Result = std::optional<StepValue>;

    Result operator()(std::monostate) const { return std::nullopt; }
    Result operator()(LocalValue::Unset) const
    {
        return descriptor.isOptional ? Result(StepValue()) : std::nullopt;
    }
    Result operator()(bool value) const { return StepValue::enumeration(value ? "T" : "F"); }
    Result operator()(double value) const { return StepValue::real(value); }
    Result operator()(std::int64_t value) const { return StepValue::integer(value); }
    Result operator()(std::string const& value) const
    {
        switch (descriptor.kind) {
        case ValueKind::Enumeration:
            return StepValue::enumeration(value);
        case ValueKind::Logical:
            return StepValue::enumeration(value == "true"      ? "T"
                                          : value == "false"   ? "F"
                                          : value == "unknown" ? "U"
                                                               : value);
        case ValueKind::Binary:
            return StepValue::binary(value);
        default:
            return StepValue::text(value);
        }
    }
    Result operator()(LocalValue::LogicalNumber value) const
    {
        return StepValue::enumeration(value.number == 1 ? "T" : value.number == 0 ? "F" : "U");
    }
    Result operator()(std::vector<std::int64_t> const& values) const
    {
        std::vector<StepValue> items;
        for (std::int64_t const value : values)
            items.push_back(StepValue::integer(value));
        return StepValue::list(std::move(items));
    }
    Result operator()(Guid const& value) const { return StepValue::text(value.toString()); }
    Result operator()(LocalValue::List const& values) const
    {
        std::vector<StepValue> items;
        for (auto const& value : values) {
            auto item = std::visit(*this, value.value);
            if (!item)
                return std::nullopt;
            items.push_back(std::move(*item));
        }
        return StepValue::list(std::move(items));
    }
    template <class Other>
    Result operator()(Other const&) const
    {
        return std::nullopt;
    }
};

/// What a reference, or a select that holds one, leads to; null for a set of entities.
std::shared_ptr<FcBase> onlyEntityOf(AttributeBase const& attribute, AttributeOperations const& operations)
{
    std::vector<std::shared_ptr<FcBase>> entities;
    operations.visitReferences(
        attribute, [&entities](ReferenceBase const& reference) { entities.push_back(reference.entity()); });
    return entities.size() == 1 ? entities.front() : nullptr;
}

} // namespace

LocalValue localValueOf(AttributeBase const& attribute, AttributeDescriptor const& descriptor)
{
    bool const isOfEntities = descriptor.kind == ValueKind::Reference || descriptor.kind == ValueKind::Select;
    if (isOfEntities && descriptor.depth != 0)
        return {};
    AttributeOperations const& operations = *descriptor.operations;
    if (operations.isUnset(attribute))
        return {{LocalValue::Unset(), std::nullopt}};
    if (auto const entity = descriptor.depth == 0 ? onlyEntityOf(attribute, operations) : nullptr)
        return {{entity, std::nullopt}};
    StepValue const value = operations.write(attribute, descriptor, PlainWriter());
    if (value.kind() == Kind::List && descriptor.kind == ValueKind::Integer && descriptor.depth == 1)
        return {{integersOf(value), std::nullopt}};
    return {{variantOf(value, descriptor), std::nullopt}};
}

bool assignLocalValue(AttributeBase& attribute, AttributeDescriptor const& descriptor,
                      LocalValue const& value)
{
    if (descriptor.kind == ValueKind::Reference || descriptor.kind == ValueKind::Select ||
        descriptor.kind == ValueKind::Value)
        return false;
    auto const stepValue = std::visit(StepOfLocalValue{descriptor}, value.value);
    if (!stepValue)
        return false;
    AttributeOperations const& operations = *descriptor.operations;
    auto const before = operations.snapshot(attribute);
    PlainReader reader;
    operations.read(attribute, descriptor, *stepValue, reader);
    auto const after = operations.snapshot(attribute);
    operations.restore(attribute, before.get());
    if (!reader.fits())
        return false;
    attribute.change([&] { operations.restore(attribute, after.get()); });
    return true;
}

} // namespace qev::fc
