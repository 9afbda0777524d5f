#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include "Core/Assert/Assert.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "FoundationClasses/FcBase.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/Set/PropertySet.h"
#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"
#include "UI/FoundationClasses/Set/QuantitySet.h"

#include <string_view>
#include <utility>

namespace qev::fc::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySetDefinition::" + std::string(operation),
                   "UI/FoundationClasses/Set/PropertySetDefinition");
}

} // namespace

std::unique_ptr<PropertySetDefinition> PropertySetDefinition::create(
    PropertySetDefinitionInfo const& info, ObjectsGetter const& objectsGetter,
    std::shared_ptr<PropertyFormatterInterface> const& formatter,
    std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
    std::vector<std::string> const& contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride)
{
    switch (info.type) {
    case PropertySetDefinitionType::PropertySet:
        return std::make_unique<PropertySet>(info, objectsGetter, formatter, filter, contexts, qppOverride);
    case PropertySetDefinitionType::QuantitySet:
        return std::make_unique<QuantitySet>(info, objectsGetter, formatter, filter, contexts);
    case PropertySetDefinitionType::Unknown:
        reportFrom("create", "Unknown type");
        return nullptr;
    }
    return nullptr;
}

PropertySetDefinition::PropertySetDefinition(
    PropertySetDefinitionInfo const& info, ObjectsGetter objectsGetter,
    std::shared_ptr<PropertyFormatterInterface> formatter,
    std::shared_ptr<PropertySetDefinitionFilterInterface> filter, std::vector<std::string> contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> qppOverride)
    : m_name(info.name)
    , m_definition(info.definition)
    , m_type(info.type)
    , m_formatter(std::move(formatter))
    , m_filter(std::move(filter))
    , m_qppOverride(std::move(qppOverride))
    , m_objectsGetter(std::move(objectsGetter))
    , m_contexts(std::move(contexts))
{
}

PropertySetDefinition::~PropertySetDefinition() = default;

std::string PropertySetDefinition::getDescription() const
{
    return m_definition ? m_definition->description : std::string();
}

std::string PropertySetDefinition::getLocalizedName(std::function<std::string()> fallback) const
{
    if (!fallback)
        fallback = [this] { return m_name; };
    bool const hasDefinedName = m_definition && !m_definition->name.empty();
    return localizedText(m_contexts, hasDefinedName ? m_definition->name : m_name, fallback);
}

std::string PropertySetDefinition::getLocalizedDescription(std::function<std::string()> fallback) const
{
    if (!m_definition || m_definition->name.empty())
        return {};
    if (!fallback)
        fallback = [this] { return getDescription(); };
    return localizedText(m_contexts, m_definition->name + "_Description", fallback);
}

std::vector<std::shared_ptr<FcBase>> const& PropertySetDefinition::getObjects() const
{
    static std::vector<std::shared_ptr<FcBase>> const none;
    return m_objectsGetter ? m_objectsGetter() : none;
}

void PropertySetDefinition::onPropertyCustomButtonClicked(std::string const& propertyName)
{
    if (m_formatter)
        m_formatter->onPropertyCustomButtonClicked(m_name, propertyName);
    else
        reportFrom("onPropertyCustomButtonClicked",
                   "Expected function to be called only when we have a formatter.");
}

std::unique_ptr<unit::QuantityPresentationBase> PropertySetDefinition::quantityPresentationOverride(
    std::string const& propertyType, std::string const& setName, std::string const& propertyName) const
{
    if (!m_qppOverride)
        return nullptr;
    return m_qppOverride->createQuantityPresentation(propertyType, setName, propertyName);
}

void PropertySetDefinition::appendProperty(std::unique_ptr<PropertyInterface> property)
{
    if (property)
        m_properties.push_back(std::move(property));
}

void PropertySetDefinition::relate(std::string const& toggleName, std::string const& valueName)
{
    m_togglesToValues[toggleName] = valueName;
    m_valuesToToggles[valueName] = toggleName;
}

} // namespace qev::fc::ui
