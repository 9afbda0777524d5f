#include "EntityProperties.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Object/PropertyText.h"
#include "Ui/PropertyGrid/PropertyGridNumber.h"

namespace qev::application {

using fc::ui::propertyinterface::FcPropertyWrapper;
using object::PropertyId;
using object::PropertyText;
using object::PropertyValue;

namespace {

std::optional<double> numberOf(PropertyValue const& value)
{
    auto const plain = value.getUnwrappedOptionalValue();
    return plain && plain->is<double>() ? std::optional(plain->get<double>()) : std::nullopt;
}

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
    property.text = PropertyText::getText(property.value);
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
    auto const presentation = m_wrapper->createQuantityPresentation(path);
    auto const like = PropertyText::getLike(m_wrapper->getValue(path), presentation != nullptr);
    for (auto const& choice : m_wrapper->getEnumeratedValues(path)) {
        if (!text.empty() && choice.text == text && choice.value)
            return PropertyText::bringTo(like, *choice.value);
    }
    return PropertyText::read(text, like, presentation.get());
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
