#include "Format/Ifc/Model/ValueConversion.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Schema/DataTypeEnum.h"
#include "Format/Ifc/Schema/DeclaredType.h"
#include "Format/Ifc/Schema/Select.h"
#include "Format/Ifc/Schema/Type.h"
#include "Format/Ifc/Step/StepRecordParser.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace qev::ifc {

namespace {

using def::schema::DeclaredType;
using fc::ValueKind;
using step::StepValue;
using Kind = StepValue::Kind;

int numberAt(std::vector<StepValue> const& arguments, std::size_t position)
{
    return position < arguments.size() && arguments[position].isNumber()
               ? static_cast<int>(arguments[position].realValue())
               : 0;
}

/// The keyword of a record in capitals, and its arguments; empty for none.
std::string readRecord(step::InstanceId id, step::StepFile const& file, std::vector<StepValue>& arguments)
{
    step::RecordIndex const record = file.indexOf(id);
    if (record == step::StepFile::noRecord)
        return {};
    step::StepRecordParser(file).parse(record, arguments);
    return str::toUpper(file.keywordOf(record));
}

template <class... Numbers>
std::string formatted(char const* format, Numbers... numbers)
{
    char buffer[48] = {};
    std::snprintf(buffer, sizeof buffer, format, numbers...);
    return buffer;
}

std::optional<std::string> calendarDateText(step::InstanceId id, step::StepFile const& file)
{
    std::vector<StepValue> arguments;
    if (readRecord(id, file, arguments) != "IFCCALENDARDATE")
        return std::nullopt;
    return formatted("%04d-%02d-%02d", numberAt(arguments, 2), numberAt(arguments, 1),
                     numberAt(arguments, 0));
}

std::optional<std::string> localTimeText(step::InstanceId id, step::StepFile const& file)
{
    std::vector<StepValue> arguments;
    if (readRecord(id, file, arguments) != "IFCLOCALTIME")
        return std::nullopt;
    return formatted("%02d:%02d:%02d", numberAt(arguments, 0), numberAt(arguments, 1),
                     numberAt(arguments, 2));
}

/// Dates and times were records of their own before IFC4; now they are ISO 8601 texts.
std::optional<std::string> dateText(step::InstanceId id, step::StepFile const& file)
{
    std::vector<StepValue> arguments;
    if (readRecord(id, file, arguments) != "IFCDATEANDTIME" || arguments.size() < 2) {
        auto date = calendarDateText(id, file);
        return date ? date : localTimeText(id, file);
    }
    auto const date = calendarDateText(arguments[0].referenceId(), file);
    auto const time = localTimeText(arguments[1].referenceId(), file);
    return date && time ? std::optional(*date + "T" + *time) : std::nullopt;
}

bool takesPlainValue(ValueKind kind)
{
    return kind == ValueKind::Text || kind == ValueKind::Real || kind == ValueKind::Integer ||
           kind == ValueKind::Boolean || kind == ValueKind::Logical;
}

bool isPlain(StepValue const& value)
{
    return value.isNumber() || value.kind() == Kind::Text || value.kind() == Kind::Enumeration;
}

StepValue toModelText(StepValue value, step::StepFile const& file)
{
    if (value.kind() == Kind::Enumeration)
        return StepValue::text(value.textValue());
    if (value.kind() == Kind::Reference) {
        auto text = dateText(value.referenceId(), file);
        return text ? StepValue::text(std::move(*text)) : StepValue();
    }
    return value;
}

bool isTruth(StepValue const& value)
{
    return value.kind() != Kind::Enumeration || value.textValue() == "T" || value.textValue() == "F" ||
           value.textValue() == "U";
}

StepValue toModelForm(StepValue value, def::schema::Attribute const& fileAttribute, std::size_t depth,
                      fc::AttributeDescriptor const& modelAttribute, step::StepFile const& file)
{
    if (value.isUnset() || value.kind() == Kind::Derived)
        return value;
    if (depth > 0 && value.kind() == Kind::List) {
        std::vector<StepValue> items;
        for (StepValue const& item : value.items())
            items.push_back(toModelForm(item, fileAttribute, depth - 1, modelAttribute, file));
        return StepValue::list(std::move(items));
    }
    if (depth == 1 && value.kind() == Kind::Reference)
        return StepValue::list({std::move(value)});
    if (takesPlainValue(modelAttribute.kind) && value.kind() == Kind::Typed)
        value = StepValue(value.items().front());
    if (modelAttribute.kind == ValueKind::Text)
        return toModelText(std::move(value), file);
    if (modelAttribute.kind == ValueKind::Boolean && !isTruth(value))
        return {};
    bool const isTypedInModel =
        modelAttribute.kind == ValueKind::Select || modelAttribute.kind == ValueKind::Value;
    if (isTypedInModel && isPlain(value))
        return StepValue::typed(str::toUpper(fileAttribute.dataType().name()), std::move(value));
    return value;
}

/// Drafts of a version mix classes of several, so that it is the names that count.
bool isKindOf(def::schema::Entity const& entity, def::schema::Entity const& target)
{
    for (auto const* candidate = &entity; candidate; candidate = candidate->supertype()) {
        if (candidate->nameUpper() == target.nameUpper())
            return true;
    }
    return false;
}

/// Whether an attribute of the data type may refer to an entity of the class.
bool holdsClass(def::schema::ObjectBase const& dataType, def::schema::Entity const& entity)
{
    if (auto const* const target = dynamic_cast<def::schema::Entity const*>(&dataType))
        return isKindOf(entity, *target);
    auto const* const select = dynamic_cast<def::schema::Select const*>(&dataType);
    return select && std::any_of(select->members().begin(), select->members().end(),
                                 [&entity](auto const* member) { return holdsClass(*member, entity); });
}

bool isText(def::schema::ObjectBase const& dataType)
{
    auto const* const type = dynamic_cast<def::schema::Type const*>(&dataType);
    return type && !type->isAggregate() && type->baseKind() == def::schema::Type::BaseKind::String;
}

/// A list of values each of which names its type.
bool isListOfTypedValues(def::schema::Attribute const& fileAttribute)
{
    return fileAttribute.declaredTypes().size() == 2 && fileAttribute.declaredTypes().front().isAggregate() &&
           fileAttribute.dataType().nameUpper() == "IFCVALUE";
}

/// The plainest type for what a value is made of; empty for values that no version has otherwise.
std::string plainTypeOf(StepValue const& value)
{
    switch (value.kind()) {
    case Kind::Text:
        return "IFCTEXT";
    case Kind::Real:
        return "IFCREAL";
    case Kind::Integer:
        return "IFCINTEGER";
    case Kind::Enumeration:
        return value.textValue() == "U" ? "IFCLOGICAL" : "IFCBOOLEAN";
    default:
        return {};
    }
}

bool hasMember(def::schema::Select const& select, std::string_view keyword)
{
    auto const members = select.flattenedMembers();
    return std::any_of(members.begin(), members.end(),
                       [keyword](auto const* member) { return member->nameUpper() == keyword; });
}

/// A value of a type that the file's version does not have gets a plain type. No value when there is none.
std::optional<StepValue> withKnownType(StepValue value, def::schema::Select const& select)
{
    if (value.kind() == Kind::List) {
        std::vector<StepValue> items;
        for (StepValue const& item : value.items()) {
            auto known = withKnownType(item, select);
            if (!known)
                return std::nullopt;
            items.push_back(*std::move(known));
        }
        return StepValue::list(std::move(items));
    }
    if (value.kind() != Kind::Typed || hasMember(select, value.textValue()))
        return value;
    auto type = plainTypeOf(value.items().front());
    if (!hasMember(select, type))
        return std::nullopt;
    return StepValue::typed(std::move(type), value.items().front());
}

StepValue emptyLabel() { return StepValue::typed("IFCLABEL", StepValue::text({})); }

} // namespace

StepValue toModelForm(StepValue value, def::schema::Attribute const& fileAttribute,
                      fc::AttributeDescriptor const& modelAttribute, step::StepFile const& file)
{
    return toModelForm(std::move(value), fileAttribute, modelAttribute.depth, modelAttribute, file);
}

bool fitsFileVersion(StepValue const& value, def::schema::Attribute const& fileAttribute,
                     std::function<def::schema::Entity const*(step::InstanceId)> const& classOf)
{
    if (value.kind() == Kind::Reference) {
        def::schema::Entity const* const found = classOf(value.referenceId());
        return found && holdsClass(fileAttribute.dataType(), *found);
    }
    auto const* const items = dynamic_cast<def::schema::DataTypeEnum const*>(&fileAttribute.dataType());
    return value.kind() == Kind::Enumeration && items && items->hasValue(value.textValue());
}

bool takesClass(def::schema::Attribute const& fileAttribute, def::schema::Entity const& fileEntity)
{
    return holdsClass(fileAttribute.dataType(), fileEntity);
}

StepValue toFileFormOfUnset(def::schema::Attribute const& fileAttribute)
{
    if (fileAttribute.isOptional())
        return {};
    if (isListOfTypedValues(fileAttribute))
        return StepValue::list({emptyLabel()});
    bool const isOneText = fileAttribute.declaredTypes().size() == 1 && isText(fileAttribute.dataType());
    return isOneText ? StepValue::text({}) : StepValue();
}

bool isFileFormOfUnsetList(StepValue const& value, def::schema::Attribute const& fileAttribute)
{
    return !fileAttribute.isOptional() && isListOfTypedValues(fileAttribute) && value.kind() == Kind::List &&
           value.items().size() == 1 && value.items().front() == emptyLabel();
}

std::optional<StepValue> toFileForm(StepValue value, def::schema::Attribute const& fileAttribute)
{
    bool const isEmptyList = value.kind() == Kind::List && value.items().empty();
    if (value.isUnset() || (isEmptyList && isListOfTypedValues(fileAttribute)))
        return toFileFormOfUnset(fileAttribute);
    DeclaredType const& outer = fileAttribute.declaredTypes().front();
    DeclaredType const& inner = fileAttribute.declaredTypes().back();
    if (!outer.isAggregate() && value.kind() == Kind::List && inner.kind == DeclaredType::Kind::Entity)
        return value.items().size() == 1 ? std::optional(value.items().front()) : std::nullopt;
    bool const isSelect = inner.kind == DeclaredType::Kind::Select;
    if (isSelect)
        return withKnownType(std::move(value), static_cast<def::schema::Select const&>(*inner.dataType));
    if (!outer.isAggregate() && value.kind() == Kind::Typed)
        value = StepValue(value.items().front());
    if (fileAttribute.enumeration() && value.kind() == Kind::Text)
        value = StepValue::enumeration(str::toUpper(value.textValue()));
    if (fileAttribute.enumeration())
        return value.kind() == Kind::Enumeration && fileAttribute.enumeration()->hasValue(value.textValue())
                   ? std::optional(std::move(value))
                   : std::nullopt;
    bool const needsRecord = !outer.isAggregate() && inner.kind == DeclaredType::Kind::Entity;
    if (needsRecord && value.kind() != Kind::Reference)
        return std::nullopt;
    return value;
}

} // namespace qev::ifc
