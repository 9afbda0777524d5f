#include "Edit/EditorProperty.h"

#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include <algorithm>
#include <charconv>
#include <type_traits>
#include <utility>
#include <variant>

namespace qev::ui::edit {

namespace {

using object::PropertyId;
using object::PropertyValue;

/// A value as people read it, without regard to a unit.
struct TextOfValue
{
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::string const& value) const { return value; }
    std::string operator()(double value) const { return PropertyGridNumber::getShownText(value, nullptr); }
    template <class Value>
    std::string operator()(std::optional<Value> const& value) const
    {
        return value ? (*this)(*value) : std::string();
    }
    template <class Integer>
    std::string operator()(Integer value) const
    {
        return std::to_string(value);
    }
};

std::string textOf(PropertyValue const& value) { return std::visit(TextOfValue(), value.variant()); }

bool isUnset(PropertyValue const& value)
{
    return value.kind() == PropertyValue::Kind::Nothing || value.isNullopt();
}

/// Nothing and an optional without a value look the same to people, as do plain and optional kinds.
bool areAlike(PropertyValue const& left, PropertyValue const& right)
{
    if (isUnset(left) || isUnset(right))
        return isUnset(left) && isUnset(right);
    return left.getUnwrappedOptionalValue() == right.getUnwrappedOptionalValue();
}

bool isOptionalKind(PropertyValue const& value)
{
    return value.kind() >= PropertyValue::Kind::OptionalInteger;
}

std::string_view getLastSegment(PropertyId const& id)
{
    std::string_view const text = id.text();
    auto const dot = text.rfind('.');
    return dot == std::string_view::npos ? text : text.substr(dot + 1);
}

std::optional<PropertyValue> readInteger(std::string const& text, PropertyValue::Kind kind)
{
    auto const read = [&](auto number) -> std::optional<PropertyValue> {
        auto const* const end = text.data() + text.size();
        auto const [stop, error] = std::from_chars(text.data(), end, number);
        if (error != std::errc() || stop != end)
            return std::nullopt;
        return PropertyValue(number);
    };
    auto const isUnsigned =
        kind == PropertyValue::Kind::Unsigned || kind == PropertyValue::Kind::OptionalUnsigned;
    return isUnsigned ? read(std::uint32_t()) : read(int());
}

bool isEmptyInput(PropertyGridInput const& input)
{
    if (input.checkState)
        return *input.checkState == CheckState::Indeterminate;
    return input.text.empty() && !input.number;
}

void appendLine(std::string& text, std::string const& line)
{
    if (!line.empty())
        text += (text.empty() ? "" : "\n") + line;
}

} // namespace

EditorProperty::EditorProperty(ShownObjects const& objects,
                               ObjectPropertyEditControllerBase const& controller, PropertyId id)
    : m_objects(objects)
    , m_controller(controller)
    , m_id(std::move(id))
{
}

std::string EditorProperty::getLabel() const
{
    auto const label =
        m_objects.empty() ? std::string() : m_objects.front()->getPropertyInterface()->getPropertyName(m_id);
    return label.empty() ? std::string(getLastSegment(m_id)) : label;
}

std::string EditorProperty::getDescription() const
{
    std::string text;
    if (m_objects.empty())
        return text;
    auto const properties = m_objects.front()->getPropertyInterface();
    appendLine(text, properties->getPropertyDescription(m_id));
    appendLine(text, properties->getPropertyValueDescription(m_id));
    for (auto const& message : properties->getMessages(m_id))
        appendLine(text, message);
    return text;
}

bool EditorProperty::isEnabled() const
{
    return std::all_of(m_objects.begin(), m_objects.end(),
                       [&](auto const& object) { return object->getEditor().isEnabled(m_id); });
}

bool EditorProperty::isReadOnly() const
{
    return std::any_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        auto const properties = object->getPropertyInterface();
        return object->isReadOnly() || properties->isPropertyReadOnly(m_id) ||
               object->getEditor().isReadOnly(m_id) ||
               (m_objects.size() > 1 && !properties->isEditableWithOthers());
    });
}

bool EditorProperty::isEmptyAllowed() const
{
    return std::all_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return object->getPropertyInterface()->isEmptyValueAllowed(m_id);
    });
}

bool EditorProperty::isLocalValue() const
{
    return std::any_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return object->getPropertyInterface()->isLocalValue(m_id);
    });
}

bool EditorProperty::isReference() const
{
    return !m_objects.empty() && std::all_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return object->getPropertyInterface()->isReference(m_id);
    });
}

EditorProperty::Kind EditorProperty::getKind() const
{
    if (m_controller.hasEnumeratedValues(m_id))
        return Kind::Choice;
    using ValueKind = PropertyValue::Kind;
    switch (getLike(PropertyValue()).kind()) {
    case ValueKind::Integer:
    case ValueKind::OptionalInteger:
    case ValueKind::Unsigned:
    case ValueKind::OptionalUnsigned:
        return Kind::Integer;
    case ValueKind::Boolean:
    case ValueKind::OptionalBoolean:
        return Kind::Boolean;
    case ValueKind::Double:
    case ValueKind::OptionalDouble:
        return Kind::Number;
    case ValueKind::Nothing:
    case ValueKind::String:
    case ValueKind::OptionalString:
        break;
    }
    return Kind::Text;
}

bool EditorProperty::isMixed() const
{
    auto const first = getValue();
    return std::any_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return !areAlike(object->getPropertyInterface()->getValue(m_id), first);
    });
}

PropertyValue EditorProperty::getValue() const
{
    return m_objects.empty() ? PropertyValue() : m_objects.front()->getPropertyInterface()->getValue(m_id);
}

std::string EditorProperty::getText() const
{
    if (isMixed())
        return {};
    auto const value = getValue();
    if (getKind() == Kind::Choice)
        for (auto const& choice : m_controller.getEnumeratedValues(m_id))
            if (choice.value && !isUnset(value) && areAlike(*choice.value, value))
                return choice.text;
    return textOf(value);
}

std::optional<double> EditorProperty::getNumber() const
{
    auto const plain = isMixed() ? std::nullopt : getValue().getUnwrappedOptionalValue();
    return plain && plain->is<double>() ? std::optional(plain->get<double>()) : std::nullopt;
}

EditorProperty::Choices EditorProperty::getChoices() const
{
    if (getKind() == Kind::Choice)
        return m_controller.getEnumeratedValues(m_id);
    Choices choices;
    if (!m_objects.empty())
        for (auto const& value : m_objects.front()->getPropertyInterface()->getSuggestedValues(m_id))
            choices.push_back({textOf(value), value});
    return choices;
}

std::unique_ptr<unit::QuantityPresentationBase> EditorProperty::createQuantityPresentation() const
{
    if (m_objects.empty() || getKind() != Kind::Number)
        return nullptr;
    return m_objects.front()->getPropertyInterface()->createQuantityPresentation(m_id);
}

std::optional<std::string> EditorProperty::findObjection(PropertyGridInput const& input) const
{
    if (isEmptyInput(input) && !isEmptyAllowed())
        return localize("Input_NotEmpty", "Ui");
    for (auto const& object : m_objects) {
        auto const properties = object->getPropertyInterface();
        auto const value = interpret(input, getLike(properties->getValue(m_id)));
        if (!value)
            return localize("Input_NotAWholeNumber", "Ui", {input.text});
        if (!properties->isValueAllowed(m_id, *value))
            return describeRefusal(input);
    }
    return std::nullopt;
}

PropertyValue EditorProperty::write(PropertyGridInput const& input) const
{
    std::optional<PropertyValue> first;
    // Whoever hears of a change may show other objects.
    auto const objects = m_objects;
    for (auto const& object : objects) {
        auto const properties = object->getWritablePropertyInterface();
        auto const value = interpret(input, getLike(properties->getValue(m_id)));
        if (!value)
            continue;
        properties->setValue(m_id, *value);
        if (!first)
            first = value;
    }
    return first.value_or(PropertyValue());
}

void EditorProperty::reset() const
{
    auto const objects = m_objects;
    for (auto const& object : objects)
        if (auto const properties = object->getWritablePropertyInterface(); properties->isLocalValue(m_id))
            properties->resetToGlobalValue(m_id);
}

PropertyValue EditorProperty::getLike(PropertyValue const& value) const
{
    if (value.kind() != PropertyValue::Kind::Nothing)
        return value;
    for (auto const& object : m_objects) {
        auto const properties = object->getPropertyInterface();
        if (auto other = properties->getValue(m_id); other.kind() != PropertyValue::Kind::Nothing)
            return other;
    }
    // A number that has no value yet may read as nothing; its presentation tells that it is one.
    auto const isNumber = std::any_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return object->getPropertyInterface()->hasQuantityPresentation(m_id);
    });
    return isNumber ? PropertyValue(std::optional<double>()) : PropertyValue(std::optional<std::string>());
}

std::optional<PropertyValue> EditorProperty::interpret(PropertyGridInput const& input,
                                                       PropertyValue const& like) const
{
    if (isEmptyInput(input))
        return like.getWrappedOptionalValue(PropertyValue());
    auto value = getKind() == Kind::Integer ? readInteger(input.text, like.kind()) : interpretPlain(input);
    return value && isOptionalKind(like) ? like.getWrappedOptionalValue(*value) : value;
}

std::optional<PropertyValue> EditorProperty::interpretPlain(PropertyGridInput const& input) const
{
    if (input.checkState)
        return PropertyValue(*input.checkState == CheckState::Checked);
    if (input.number)
        return PropertyValue(*input.number);
    for (auto const& choice : getChoices())
        if (choice.text == input.text && choice.value)
            return choice.value->getUnwrappedOptionalValue();
    return PropertyValue(input.text);
}

std::string EditorProperty::describeRefusal(PropertyGridInput const& input) const
{
    auto message = localize("Input_NotAllowed", "Ui", {input.text});
    auto const presentation = createQuantityPresentation();
    if (presentation)
        message += ' ' + PropertyGridNumber::describeExpected(input.text, presentation.get());
    auto const description = m_objects.front()->getPropertyInterface()->getPropertyValueDescription(m_id);
    return description.empty() ? message : message + ' ' + description;
}

} // namespace qev::ui::edit
