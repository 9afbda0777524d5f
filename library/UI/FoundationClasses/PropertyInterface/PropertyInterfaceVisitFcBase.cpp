#include "Core/Assert/Assert.h"
#include "Core/Localization/Localize.h"
#include "Core/Math/Vector.h"
#include "Core/Math/Vector2d.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "Format/Ifc/Schema/Type.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcBase.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/LocalValue.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "FoundationClasses/Tree/FcFileInfo.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/IsValueAllowed.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <type_traits>

namespace qev::fc::ui::propertyinterface {

using ifc::SchemaLoader;
using ifc::def::SchemaPset;
using ifc::def::schema::Attribute;
using ifc::def::schema::Entity;
using object::PropertyId;
using object::PropertyValue;
using resource::geometry::FcCartesianPoint;
using resource::geometry::FcDirection;

namespace {

constexpr std::string_view path = "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcBase";

// --- Values -----------------------------------------------------------------------------------------

math::_2d::Vector planeVector(std::vector<double> const& numbers) { return {numbers[0], numbers[1]}; }

/// What is missing in a broken file counts as 0.
math::Vector spaceVector(std::vector<double> const& numbers)
{
    auto const at = [&numbers](std::size_t position) {
        return position < numbers.size() ? numbers[position] : 0.0;
    };
    return {at(0), at(1), at(2)};
}

std::string textOf(FcCartesianPoint const& point)
{
    auto const& coordinates = point.Coordinates.get();
    return coordinates.size() == 2 ? planeVector(coordinates).toString()
                                   : spaceVector(coordinates).toString();
}

std::string textOf(FcDirection const& direction)
{
    auto const& ratios = direction.DirectionRatios.get();
    return ratios.size() == 2 ? planeVector(ratios).toString() : spaceVector(ratios).normalised().toString();
}

std::string textOfEntity(std::shared_ptr<FcBase> const& entity)
{
    if (!entity)
        return {};
    if (auto const point = entityCast<FcCartesianPoint>(entity))
        return textOf(*point);
    if (auto const direction = entityCast<FcDirection>(entity))
        return textOf(*direction);
    assert::report(std::string("Not implemented toString for ") + entity->getEntityName(),
                   "qev::fc::ui::propertyinterface::GetValue::visit::<lambda_2>::operator ()", path);
    return {};
}

/// The texts in brackets.
class BracketText
{
public:
    void add(std::string_view item)
    {
        if (!m_isFirst)
            m_text += ", ";
        m_isFirst = false;
        m_text += item;
    }
    [[nodiscard]] std::string close() &&
    {
        m_text += ')';
        return std::move(m_text);
    }

private:
    std::string m_text = "(";
    bool m_isFirst = true;
};

/// As "%f" prints it, whatever the locale.
std::string textOfNumber(double number) { return str::fixedText(number, 6); }

std::string textOfNumbers(std::span<double const> numbers)
{
    BracketText text;
    for (double const number : numbers)
        text.add(textOfNumber(number));
    return std::move(text).close();
}

/// What stands for a value within a list.
std::string textOfItem(PropertyValue const& value)
{
    return std::visit(
        [](auto const& held) -> std::string {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::string>)
                return held;
            else if constexpr (std::is_same_v<Held, int>)
                return std::to_string(held);
            else if constexpr (std::is_same_v<Held, double>)
                return textOfNumber(held);
            else if constexpr (std::is_same_v<Held, bool>)
                return held ? "1" : "0";
            else
                return "$";
        },
        value.variant());
}

/// The value of an attribute as a property, before optional ones are told apart.
struct PropertyValueOf
{
    PropertyValue operator()(std::monostate) const { return {}; }
    /// An unset attribute has a kind only once its type is known.
    PropertyValue operator()(LocalValue::Unset) const { return {}; }
    PropertyValue operator()(bool value) const { return value; }
    PropertyValue operator()(double value) const { return value; }
    PropertyValue operator()(std::int64_t value) const
    {
        // A whole number that is too large for the kind of whole numbers keeps its size as a number.
        if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
            return static_cast<double>(value);
        return static_cast<int>(value);
    }
    PropertyValue operator()(std::string const& value) const { return value; }
    PropertyValue operator()(LocalValue::LogicalNumber value) const
    {
        switch (value.number) {
        case 1:
            return qev::localize("LogicalValue_True", "FoundationClassesUi");
        case 0:
            return qev::localize("LogicalValue_False", "FoundationClassesUi");
        case -1:
            return qev::localize("LogicalValue_Unknown", "FoundationClassesUi");
        default:
            assert::report("Invalid LogicalValue", "qev::fc::ui::propertyinterface::GetValue::visit", path);
            return {};
        }
    }
    PropertyValue operator()(std::vector<std::int64_t> const& values) const
    {
        BracketText text;
        for (std::int64_t const value : values)
            text.add(std::to_string(value));
        return std::move(text).close();
    }
    PropertyValue operator()(Guid const& value) const { return value.toString(); }
    PropertyValue operator()(std::shared_ptr<FcBase> const& value) const { return textOfEntity(value); }
    PropertyValue operator()(std::array<double, 2> const& values) const { return textOfNumbers(values); }
    PropertyValue operator()(std::array<double, 3> const& values) const { return textOfNumbers(values); }
    PropertyValue operator()(LocalValue::VectorNumbers const& values) const
    {
        return textOfNumbers(values.numbers);
    }
    PropertyValue operator()(LocalValue::List const& values) const
    {
        BracketText text;
        for (auto const& item : values)
            text.add(textOfItem(std::visit(*this, item.value)));
        return std::move(text).close();
    }
};

/// The same value in the optional kind; kinds without an optional one stay as they are.
PropertyValue asOptional(PropertyValue const& value) { return value.getWrappedOptionalValue(value); }

// --- Unset attributes -------------------------------------------------------------------------------

void reportSchemaFault(std::string_view text, unsigned int line = __builtin_LINE())
{
    constexpr unsigned int brokenRule = 0;
    assert::report(text, "getNulloptPropertyValueFor", path, brokenRule, line);
}

Attribute const* schemaAttribute(FcBase const& entity, std::string const& name, SchemaPset const* schema)
{
    if (!schema) {
        reportSchemaFault("Could not load schema");
        return nullptr;
    }
    auto const key = entity.getEntityNameUpperHashed();
    auto const* const found = dynamic_cast<Entity const*>(schema->schema().find(key.text, key.hash));
    if (!found) {
        reportSchemaFault("Could not find entity in ifc schema...");
        return nullptr;
    }
    auto const* const attribute = found->findAttribute(name);
    if (!attribute)
        reportSchemaFault("Could not find property in schema");
    return attribute;
}

// --- Writing ----------------------------------------------------------------------------------------

LocalValue localValueHolding(LocalValue::Variant value) { return {{std::move(value), std::nullopt}}; }

/// A property's value as an attribute takes it.
struct AnyToLocalValue
{
    LocalValue operator()(std::string const& value) const { return localValueHolding(value); }
    LocalValue operator()(double value) const { return localValueHolding(value); }
    LocalValue operator()(bool value) const { return localValueHolding(value); }
    LocalValue operator()(int value) const { return localValueHolding(std::int64_t(value)); }
    template <class Value>
    LocalValue operator()(std::optional<Value> const& value) const
    {
        if constexpr (std::is_same_v<Value, std::uint32_t>)
            return refused();
        else
            return value ? (*this)(*value) : localValueHolding(LocalValue::Unset());
    }
    LocalValue operator()(std::monostate) const { return refused(); }
    LocalValue operator()(std::uint32_t) const { return refused(); }

private:
    static LocalValue refused()
    {
        assert::report("Could not set the value", "anyToLocalValue", path);
        return {};
    }
};

} // namespace

PropertyValue getNulloptPropertyValueFor(FcBase const& entity, PropertyId const& id, SchemaPset const* schema)
{
    using ifc::def::schema::Type;
    auto const* const attribute = schemaAttribute(entity, id.text(), schema);
    auto const* const type =
        attribute ? dynamic_cast<Type const*>(attribute->declaredTypes().front().dataType) : nullptr;
    if (!type)
        return std::optional<std::string>();
    switch (type->baseKind()) {
    case Type::BaseKind::Real:
    case Type::BaseKind::Number:
        return std::optional<double>();
    case Type::BaseKind::Boolean:
        return std::optional<bool>();
    case Type::BaseKind::Integer:
        return std::optional<int>();
    default:
        return std::optional<std::string>();
    }
}

void GetProperties::visit(FcBase const& entity)
{
    if (auto const* const file = dynamic_cast<tree::FcFileInfo const*>(&entity)) {
        if (file->getProperty())
            properties.push_back(file->getProperty());
        if (!file->getFileData())
            return;
        for (auto const& history : file->getFileData()->entities<resource::utility::FcOwnerHistory>()) {
            for (auto& row : getProperties(*history))
                properties.push_back(std::move(row));
        }
        return;
    }
    auto group = makeGroup(classWithoutPrefix(entity), entity);
    group->mappedId = PropertyId(FcBaseGroupProperty);
    group->children = entity.getLocalProperties();
    properties.push_back(std::move(group));
}

void GetValue::visit(FcBase const& entity)
{
    auto const localValue = entity.getLocalValue(id);
    if (std::holds_alternative<LocalValue::Unset>(localValue.value)) {
        auto const* const schema = SchemaLoader::curr().pSchemaFromName(SchemaLoader::modelVersion);
        value = getNulloptPropertyValueFor(entity, id, schema);
        return;
    }
    auto read = std::visit(PropertyValueOf(), localValue.value);
    // A class that has answered already may still have sent the question on.
    if (read.kind() == PropertyValue::Kind::Nothing)
        return;
    value = entity.isOptional(id) ? asOptional(read) : std::move(read);
}

void SetValue::visit(FcBase& entity)
{
    entity.setLocalValue(std::visit(AnyToLocalValue(), value->variant()), id);
}

void IsValueAllowed::visit(FcBase const&) {}

void GetPropertyName::visit(FcBase const& entity)
{
    name =
        id.text() == FcBaseGroupProperty ? fc::localize(entity.getEntityName()) : entity.getPropertyName(id);
}

void GetPropertyDescription::visit(FcBase const& entity)
{
    if (id.text() != FcBaseGroupProperty) {
        description = entity.getPropertyDescription(id);
        return;
    }
    std::string const entityName = entity.getEntityName();
    description = localizeWithFallback(entityName + "_Description", entityName);
}

void HasEnumeratedValues::visit(FcBase const& entity)
{
    result = !entity.getEnumeratedValuesLocal(id).empty();
}

void GetEnumeratedValues::visit(FcBase const& entity)
{
    for (auto& text : entity.getEnumeratedValuesLocal(id))
        values.push_back({std::move(text), std::nullopt});
}

void HasQuantityPresentation::visit(FcBase const& entity)
{
    result = entity.hasQuantityPresentationLocal(id);
}

void CreateQuantityPresentation::visit(FcBase const& entity)
{
    presentation = entity.createQuantityPresentationLocal(id);
}

void GetReference::visit(FcBase const&) {}

void GetListIndexPrefix::visit(FcBase const&) {}

} // namespace qev::fc::ui::propertyinterface
