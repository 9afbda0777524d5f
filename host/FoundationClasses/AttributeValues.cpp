#include "FoundationClasses/AttributeValues.h"

#include "Core/String/Ascii.h"
#include "FoundationClasses/Data.h"

#include <algorithm>
#include <cmath>

namespace qev::fc::values {

namespace {

using Kind = StepValue::Kind;
using resource::measure::FcValue;

template <class T>
bool readAs(T& value, ValueKind kind, std::string_view expected, AttributeDescriptor const& attribute,
            StepValue const& from, AttributeReader& reader)
{
    auto const payload = readPayload(attribute.typeName, kind, false, from, reader);
    if (auto const* const found = payload ? std::get_if<T>(&*payload) : nullptr) {
        value = *found;
        return true;
    }
    reader.mismatch(attribute, expected, from);
    return false;
}

std::optional<EntityIndex> indexOf(AttributeDescriptor const& attribute, StepValue const& from,
                                   AttributeReader& reader)
{
    if (from.kind() != Kind::Reference) {
        reader.mismatch(attribute, "a reference", from);
        return std::nullopt;
    }
    EntityIndex const index = reader.indexFromId(from.referenceId());
    if (index == noEntity) {
        reader.mismatch(attribute, "a reference to an existing record", from);
        return std::nullopt;
    }
    return index;
}

std::optional<ReferenceBase> readReference(AttributeDescriptor const& attribute, StepValue const& from,
                                           AttributeReader& reader)
{
    auto const index = indexOf(attribute, from, reader);
    if (!index)
        return std::nullopt;
    unsigned int const number = reader.data().classNumber(*index);
    if (number < attribute.targetFirst || number > attribute.targetLast) {
        reader.mismatch(attribute, "a reference to " + std::string(attribute.typeName), from);
        return std::nullopt;
    }
    return ReferenceBase(reader.data(), *index);
}

/// Schema names are upper case in a record: "IFCLABEL" is IfcLabel.
bool isSameName(std::string_view upper, std::string_view name)
{
    return std::equal(upper.begin(), upper.end(), name.begin(), name.end(),
                      [](char a, char b) { return a == str::toUpper(b); });
}

resource::measure::ValueTypeInfo const* valueTypeFromKeyword(std::string_view keyword)
{
    using namespace resource::measure;
    for (auto const table : {simpleValueTypes(), measureValueTypes(), derivedMeasureValueTypes()}) {
        for (ValueTypeInfo const& info : table) {
            if (isSameName(keyword, info.schemaName))
                return &info;
        }
    }
    return nullptr;
}

SelectMember const* typeMember(SelectDescriptor const& select, std::string_view keyword)
{
    for (SelectMember const& member : select.members) {
        if (member.select) {
            if (SelectMember const* const found = typeMember(*member.select, keyword))
                return found;
        } else if (member.first == 0 && isSameName(keyword, member.name)) {
            return &member;
        }
    }
    return nullptr;
}

/// A member that is an aggregate of entities, such as a set of property sets.
bool readSelectedReferences(SelectBase& select, SelectMember const& member,
                            AttributeDescriptor const& attribute, StepValue const& list,
                            AttributeReader& reader)
{
    std::vector<ReferenceBase> references;
    for (StepValue const& item : list.items()) {
        if (auto const index = indexOf(attribute, item, reader))
            references.emplace_back(reader.data(), *index);
    }
    return select.setReferences(member.name, std::move(references));
}

bool readSelectedValue(SelectBase& select, AttributeDescriptor const& attribute, StepValue const& from,
                       AttributeReader& reader)
{
    SelectMember const* const member = typeMember(select.descriptor(), from.textValue());
    if (member && member->kind == ValueKind::Reference && from.items().size() == 1)
        return readSelectedReferences(select, *member, attribute, from.items().front(), reader);
    auto payload =
        member && from.items().size() == 1
            ? readPayload(member->name, member->kind, member->isAggregate, from.items().front(), reader)
            : std::nullopt;
    if (payload && select.setValue(member->name, std::move(*payload)))
        return true;
    reader.mismatch(attribute, "a value of " + std::string(select.descriptor().name), from);
    return false;
}

StepValue writeReferences(std::vector<ReferenceBase> const& references, AttributeWriter const& writer)
{
    std::vector<StepValue> items;
    items.reserve(references.size());
    for (ReferenceBase const& reference : references) {
        if (step::InstanceId const id = writer.idOf(reference); id != 0)
            items.push_back(StepValue::reference(id));
    }
    return StepValue::list(std::move(items));
}

} // namespace

bool read(std::string& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    return readAs(value, ValueKind::Text, "a text", attribute, from, reader);
}

bool read(double& value, AttributeDescriptor const& attribute, StepValue const& from, AttributeReader& reader)
{
    return readAs(value, ValueKind::Real, "a number", attribute, from, reader);
}

bool read(std::int64_t& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    double number = 0.0;
    // Counts were plain numbers before IFC4X3, so older files may hold "4." or "4.5".
    if (from.kind() == Kind::Real &&
        readAs(number, ValueKind::Real, "a whole number", attribute, from, reader)) {
        if (std::abs(number) < 9.0e18) {
            value = static_cast<std::int64_t>(number);
            return true;
        }
    }
    return readAs(value, ValueKind::Integer, "a whole number", attribute, from, reader);
}

bool read(bool& value, AttributeDescriptor const& attribute, StepValue const& from, AttributeReader& reader)
{
    return readAs(value, ValueKind::Boolean, ".T. or .F.", attribute, from, reader);
}

bool read(Logical& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    return readAs(value, ValueKind::Logical, ".T., .F. or .U.", attribute, from, reader);
}

bool read(Binary& value, AttributeDescriptor const& attribute, StepValue const& from, AttributeReader& reader)
{
    return readAs(value, ValueKind::Binary, "a binary", attribute, from, reader);
}

bool read(ReferenceBase& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    auto reference = readReference(attribute, from, reader);
    if (reference)
        value = std::move(*reference);
    return reference.has_value();
}

bool read(ReferenceListBase& list, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    if (from.kind() != Kind::List) {
        reader.mismatch(attribute, "a list of references", from);
        return false;
    }
    std::vector<ReferenceBase> references;
    references.reserve(from.items().size());
    for (StepValue const& item : from.items()) {
        if (auto reference = readReference(attribute, item, reader))
            references.push_back(std::move(*reference));
    }
    list.setReferences(std::move(references));
    return true;
}

bool read(SelectBase& select, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    if (from.kind() == Kind::Typed)
        return readSelectedValue(select, attribute, from, reader);
    auto const index = indexOf(attribute, from, reader);
    if (!index)
        return false;
    if (select.setReference(reader.data(), *index))
        return true;
    reader.mismatch(attribute, "a reference to a member of " + std::string(select.descriptor().name), from);
    return false;
}

bool read(FcValue& value, AttributeDescriptor const& attribute, StepValue const& from,
          AttributeReader& reader)
{
    auto const* const info = from.kind() == Kind::Typed ? valueTypeFromKeyword(from.textValue()) : nullptr;
    auto payload =
        info && from.items().size() == 1
            ? readPayload(info->schemaName, info->kind, info->isAggregate, from.items().front(), reader)
            : std::nullopt;
    if (payload && value.assign(info->schemaName, std::move(*payload)))
        return true;
    reader.mismatch(attribute, "a typed value such as IFCLABEL('text')", from);
    return false;
}

std::optional<std::uint16_t> readItem(AttributeDescriptor const& attribute, StepValue const& from,
                                      AttributeReader& reader)
{
    if (from.isUnset() || from.kind() == Kind::Derived)
        return std::nullopt;
    if (from.kind() == Kind::Enumeration) {
        auto const items = attribute.enumeration->items;
        auto const found = std::find(items.begin(), items.end(), std::string_view(from.textValue()));
        if (found != items.end())
            return static_cast<std::uint16_t>(found - items.begin());
    }
    reader.mismatch(attribute, "an item of " + std::string(attribute.enumeration->name), from);
    return std::nullopt;
}

StepValue write(std::string const& value, AttributeDescriptor const&, AttributeWriter const&)
{
    return StepValue::text(value);
}

StepValue write(double const& value, AttributeDescriptor const& attribute, AttributeWriter const& writer)
{
    return writePayload(attribute.typeName, value, writer);
}

StepValue write(std::int64_t const& value, AttributeDescriptor const&, AttributeWriter const&)
{
    return StepValue::integer(value);
}

StepValue write(bool const& value, AttributeDescriptor const& attribute, AttributeWriter const& writer)
{
    return writePayload(attribute.typeName, value, writer);
}

StepValue write(Logical const& value, AttributeDescriptor const& attribute, AttributeWriter const& writer)
{
    return writePayload(attribute.typeName, value, writer);
}

StepValue write(Binary const& value, AttributeDescriptor const&, AttributeWriter const&)
{
    return StepValue::binary(value.digits);
}

StepValue write(ReferenceBase const& reference, AttributeDescriptor const&, AttributeWriter const& writer)
{
    step::InstanceId const id = writer.idOf(reference);
    return id == 0 ? StepValue() : StepValue::reference(id);
}

StepValue write(ReferenceListBase const& list, AttributeDescriptor const&, AttributeWriter const& writer)
{
    return writeReferences(list.references(), writer);
}

StepValue write(SelectBase const& select, AttributeDescriptor const& attribute, AttributeWriter const& writer)
{
    if (!select.isSet())
        return {};
    if (select.typeName().empty())
        return write(select.reference(), attribute, writer);
    if (!select.references().empty())
        return StepValue::typed(str::toUpper(select.typeName()),
                                writeReferences(select.references(), writer));
    return StepValue::typed(str::toUpper(select.typeName()),
                            writePayload(select.typeName(), select.payload(), writer));
}

StepValue write(FcValue const& value, AttributeDescriptor const&, AttributeWriter const& writer)
{
    auto const* const info = value.typeInfo();
    if (!info)
        return {};
    return StepValue::typed(str::toUpper(info->schemaName),
                            writePayload(info->schemaName, value.payload(), writer));
}

StepValue writeItem(std::optional<std::uint16_t> item, AttributeDescriptor const& attribute)
{
    return item ? StepValue::enumeration(std::string(attribute.enumeration->items[*item])) : StepValue();
}

Text textOfItem(std::optional<std::uint16_t> item, AttributeDescriptor const& attribute)
{
    return item ? Text(attribute.enumeration->items[*item]) : std::nullopt;
}

Text text(std::string const& value, AttributeDescriptor const&) { return value; }
Text text(double const& value, AttributeDescriptor const&) { return payloadText(value); }
Text text(std::int64_t const& value, AttributeDescriptor const&) { return payloadText(value); }
Text text(bool const& value, AttributeDescriptor const&) { return payloadText(value); }
Text text(Logical const& value, AttributeDescriptor const&) { return payloadText(value); }
Text text(Binary const& value, AttributeDescriptor const&) { return value.digits; }
Text text(ReferenceBase const&, AttributeDescriptor const&) { return std::nullopt; }
Text text(ReferenceListBase const&, AttributeDescriptor const&) { return std::nullopt; }

Text text(SelectBase const& select, AttributeDescriptor const&)
{
    return select.typeName().empty() ? std::nullopt : payloadText(select.payload());
}

Text text(FcValue const& value, AttributeDescriptor const&) { return value.getAsString(false); }

void visitReferences(ReferenceBase const& reference, Visit const& visit) { visit(reference); }

void visitReferences(ReferenceListBase const& list, Visit const& visit)
{
    for (ReferenceBase const& reference : list.references())
        visit(reference);
}

void visitReferences(SelectBase const& select, Visit const& visit)
{
    if (select.typeName().empty())
        visit(select.reference());
    for (ReferenceBase const& reference : select.references())
        visit(reference);
}

} // namespace qev::fc::values
