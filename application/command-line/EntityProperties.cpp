#include "EntityProperties.h"

#include "Core/String/Ascii.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"

#include <charconv>
#include <type_traits>

namespace qev::application {

using fc::ui::propertyinterface::FcPropertyWrapper;
using object::PropertyId;
using object::PropertyValue;
using Kind = PropertyValue::Kind;

namespace {

struct TextOfValue
{
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(double value) const { return str::shortestText(value); }
    std::string operator()(std::string const& value) const { return value; }
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

std::optional<double> numberOf(PropertyValue const& value)
{
    auto const plain = value.getUnwrappedOptionalValue();
    return plain && plain->is<double>() ? std::optional(plain->get<double>()) : std::nullopt;
}

std::optional<PropertyValue> integerFromText(std::string const& text)
{
    int number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    bool const isRead = error == std::errc() && end == text.data() + text.size();
    return isRead ? std::optional<PropertyValue>(number) : std::nullopt;
}

std::optional<PropertyValue> booleanFromText(std::string const& text)
{
    for (auto const* const word : {"true", "yes", "1"}) {
        if (str::equalIgnoringCase(text, word))
            return PropertyValue(true);
    }
    for (auto const* const word : {"false", "no", "0"}) {
        if (str::equalIgnoringCase(text, word))
            return PropertyValue(false);
    }
    return std::nullopt;
}

std::optional<PropertyValue> numberFromText(std::string const& text,
                                            unit::QuantityPresentationBase const* presentation)
{
    auto const number = ui::PropertyGridNumber::read(text, presentation);
    return number ? std::optional<PropertyValue>(*number) : std::nullopt;
}

/// The unset value of the optional kind that belongs to \p value.
PropertyValue unsetLike(PropertyValue const& value) { return value.getWrappedOptionalValue(PropertyValue()); }

/// A value as people read it, without regard to a unit; empty for an unset one and for nothing.
std::string textOf(PropertyValue const& value) { return std::visit(TextOfValue(), value.variant()); }

bool isOptionalKind(PropertyValue const& value) { return value.kind() >= Kind::OptionalInteger; }

} // namespace

EntityProperties::EntityProperties(std::shared_ptr<fc::Data> data, std::shared_ptr<fc::FcBase> entity)
    : m_wrapper(FcPropertyWrapper::createStrongOwningFcPropertyWrapper(std::move(data), std::move(entity)))
{
    m_wrapper->setReadOnly(false);
}

std::vector<EntityProperty> EntityProperties::tree()
{
    m_wrapper->clearCache();
    auto const leaves = m_wrapper->getAllProperties();
    std::vector<EntityProperty> nodes;
    for (auto const& node : m_wrapper->getProperties())
        nodes.push_back(describe(*node, leaves));
    return nodes;
}

EntityProperty EntityProperties::describe(fc::Property const& node, std::set<PropertyId> const& leaves) const
{
    PropertyId const& path = node.id;
    EntityProperty property;
    property.path = path.text();
    property.localId = std::get<PropertyId>(m_wrapper->getMappedProperty(path)).text();
    property.label = m_wrapper->getPropertyName(path);
    property.description = m_wrapper->getPropertyDescription(path);
    property.isGroup = !leaves.contains(path);
    property.reference = m_wrapper->getReference(path);
    for (auto const& child : node.children)
        property.children.push_back(describe(*child, leaves));
    if (property.isGroup)
        return property;
    property.value = m_wrapper->getValue(path);
    property.text = textOf(property.value);
    property.isReadOnly = m_wrapper->isPropertyReadOnly(path);
    property.isEmptyAllowed = m_wrapper->isEmptyValueAllowed(path);
    if (m_wrapper->hasEnumeratedValues(path)) {
        for (auto& choice : m_wrapper->getEnumeratedValues(path))
            property.choices.push_back(std::move(choice.text));
    }
    auto const presentation = m_wrapper->createQuantityPresentation(path);
    property.unit = ui::PropertyGridNumber::getUnit(presentation.get());
    if (auto const number = numberOf(property.value))
        property.text = ui::PropertyGridNumber::getShownText(*number, presentation.get());
    return property;
}

bool EntityProperties::hasPath(std::string const& path) const
{
    auto const mapped = m_wrapper->getMappedProperty(PropertyId(path));
    return std::get<std::shared_ptr<fc::FcBase>>(mapped) != nullptr;
}

std::optional<PropertyValue> EntityProperties::valueFromText(PropertyId const& path,
                                                             std::string const& text) const
{
    PropertyValue const before = m_wrapper->getValue(path);
    auto const presentation = m_wrapper->createQuantityPresentation(path);
    // A number that has no value yet may read as nothing; its presentation tells that it is one.
    PropertyValue const like =
        before.kind() == Kind::Nothing && presentation ? PropertyValue(std::optional<double>()) : before;
    if (text.empty())
        return unsetLike(like.kind() == Kind::Nothing ? PropertyValue("") : like);
    for (auto const& choice : m_wrapper->getEnumeratedValues(path)) {
        if (choice.text == text && choice.value)
            return choice.value;
    }
    std::optional<PropertyValue> value;
    switch (like.kind()) {
    case Kind::Integer:
    case Kind::OptionalInteger:
        value = integerFromText(text);
        break;
    case Kind::Boolean:
    case Kind::OptionalBoolean:
        value = booleanFromText(text);
        break;
    case Kind::Double:
    case Kind::OptionalDouble:
        value = numberFromText(text, presentation.get());
        break;
    default:
        value = PropertyValue(text);
        break;
    }
    return value && isOptionalKind(like) ? like.getWrappedOptionalValue(*value) : value;
}

std::optional<std::string> EntityProperties::set(std::string const& path, std::string const& text)
{
    PropertyId const id(path);
    if (m_wrapper->isPropertyReadOnly(id))
        return "it cannot be changed";
    if (text.empty() && !m_wrapper->isEmptyValueAllowed(id))
        return "it cannot be empty";
    auto const value = valueFromText(id, text);
    if (!value)
        return "the value is not understood: " + text;
    if (!m_wrapper->isValueAllowed(id, *value))
        return "the value is not allowed: " + text;
    PropertyValue const before = m_wrapper->getValue(id);
    m_wrapper->setValue(id, *value);
    m_wrapper->clearCache();
    bool const isUnchanged = m_wrapper->getValue(id) == before;
    bool const wantedChange = value->getUnwrappedOptionalValue() != before.getUnwrappedOptionalValue();
    return isUnchanged && wantedChange ? std::optional<std::string>("it does not take the value")
                                       : std::nullopt;
}

} // namespace qev::application
