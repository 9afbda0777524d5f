#include "Edit/EditorProperty.h"

#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Object/PropertyText.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include <algorithm>
#include <utility>

namespace qev::ui::edit {

namespace {

using object::PropertyId;
using object::PropertyText;
using object::PropertyValue;

/// Values that look the same to people: plain and optional kinds do.
bool areAlike(PropertyValue const& left, PropertyValue const& right)
{
    if (PropertyText::isUnset(left) || PropertyText::isUnset(right))
        return PropertyText::isUnset(left) && PropertyText::isUnset(right);
    return left.getUnwrappedOptionalValue() == right.getUnwrappedOptionalValue();
}

std::string_view getLastSegment(PropertyId const& id)
{
    std::string_view const text = id.text();
    auto const dot = text.rfind('.');
    return dot == std::string_view::npos ? text : text.substr(dot + 1);
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
            if (choice.value && !PropertyText::isUnset(value) && areAlike(*choice.value, value))
                return choice.text;
    return PropertyText::getText(value);
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
            choices.push_back({PropertyText::getText(value), value});
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
        if (!value && getKind() == Kind::Integer)
            return localize("Input_NotAWholeNumber", "Ui", {input.text});
        if (!value || !properties->isValueAllowed(m_id, *value))
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
    auto const isNumber = std::any_of(m_objects.begin(), m_objects.end(), [&](auto const& object) {
        return object->getPropertyInterface()->hasQuantityPresentation(m_id);
    });
    return PropertyText::getLike(PropertyValue(), isNumber);
}

std::optional<PropertyValue> EditorProperty::interpret(PropertyGridInput const& input,
                                                       PropertyValue const& like) const
{
    if (isEmptyInput(input))
        return like.getWrappedOptionalValue(PropertyValue());
    if (auto const value = findValueOf(input))
        return PropertyText::bringTo(like, *value);
    return PropertyText::read(input.text, like, createQuantityPresentation().get());
}

std::optional<PropertyValue> EditorProperty::findValueOf(PropertyGridInput const& input) const
{
    if (input.checkState)
        return PropertyValue(*input.checkState == CheckState::Checked);
    if (input.number)
        return PropertyValue(*input.number);
    for (auto const& choice : getChoices())
        if (choice.text == input.text && choice.value)
            return choice.value->getUnwrappedOptionalValue();
    return std::nullopt;
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
