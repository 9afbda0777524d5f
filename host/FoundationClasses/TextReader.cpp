#include "FoundationClasses/TextReader.h"

#include "Core/Id/Guid.h"
#include "FoundationClasses/Attribute.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/Payload.h"
#include "FoundationClasses/PlainAttributeAccess.h"
#include "FoundationClasses/Reference.h"

#include <algorithm>
#include <vector>

namespace qev::fc {

namespace {

using step::StepValue;

/// The text as a record would have it; no value when it does not fit.
std::optional<StepValue> stepValueOfText(AttributeDescriptor const& descriptor, std::string const& text)
{
    if (text.empty() && (descriptor.isOptional || descriptor.kind == ValueKind::Enumeration))
        return StepValue();
    if (descriptor.kind == ValueKind::Enumeration) {
        auto const items = descriptor.enumeration->items;
        bool const isItem = std::find(items.begin(), items.end(), std::string_view(text)) != items.end();
        return isItem ? std::optional(StepValue::enumeration(text)) : std::nullopt;
    }
    if (descriptor.typeName == "IfcGloballyUniqueId" && !Guid::fromString(text))
        return std::nullopt;
    auto const payload = parsePayload(descriptor.kind, false, text);
    return payload ? std::optional(writePayload(descriptor.typeName, *payload, PlainWriter())) : std::nullopt;
}

StepValue plainValue(AttributeBase const& attribute, AttributeDescriptor const& descriptor)
{
    return descriptor.operations->write(attribute, descriptor, PlainWriter());
}

std::vector<EntityIndex> places(AttributeBase const& attribute, AttributeDescriptor const& descriptor)
{
    std::vector<EntityIndex> result;
    descriptor.operations->visitReferences(
        attribute, [&result](ReferenceBase const& reference) { result.push_back(reference.index()); });
    return result;
}

template <class T>
int order(T const& a, T const& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

int order(StepValue const& a, StepValue const& b);

int orderOfItems(std::vector<StepValue> const& a, std::vector<StepValue> const& b)
{
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        if (int const found = order(a[i], b[i]); found != 0)
            return found;
    }
    return order(a.size(), b.size());
}

int order(StepValue const& a, StepValue const& b)
{
    if (a.isNumber() && b.isNumber())
        return order(a.realValue(), b.realValue());
    if (int const found = order(a.kind(), b.kind()); found != 0)
        return found;
    if (int const found = order(a.textValue(), b.textValue()); found != 0)
        return found;
    return orderOfItems(a.items(), b.items());
}

} // namespace

bool assignText(AttributeBase& attribute, AttributeDescriptor const& descriptor, std::string const& text)
{
    bool const isPlain = descriptor.depth == 0 && descriptor.kind != ValueKind::Reference &&
                         descriptor.kind != ValueKind::Select && descriptor.kind != ValueKind::Value;
    auto const value = isPlain ? stepValueOfText(descriptor, text) : std::nullopt;
    if (!value)
        return false;
    attribute.change([&] {
        PlainReader reader;
        descriptor.operations->read(attribute, descriptor, *value, reader);
    });
    return true;
}

std::optional<double> attributeNumber(AttributeBase const& attribute, AttributeDescriptor const& descriptor)
{
    StepValue value = plainValue(attribute, descriptor);
    if (value.kind() == StepValue::Kind::Typed)
        value = StepValue(value.items().front());
    return value.isNumber() ? std::optional(value.realValue()) : std::nullopt;
}

int compareAttributes(AttributeBase const& a, AttributeBase const& b, AttributeDescriptor const& descriptor)
{
    if (int const found = order(plainValue(a, descriptor), plainValue(b, descriptor)); found != 0)
        return found;
    return order(places(a, descriptor), places(b, descriptor));
}

} // namespace qev::fc
