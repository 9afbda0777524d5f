#include "UI/FoundationClasses/Controls/PropertySetControl.h"

#include "Core/Assert/Assert.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/CommonSets.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetDefinitionFilterInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "UI/FoundationClasses/Set/PropertyTypePropertySetAndPropertyNameQppOverrideInterface.h"
#include "Ui/Window/Dialog.h"

#include <algorithm>
#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::PropertySetControl::" + std::string(operation),
                   "UI/FoundationClasses/Controls/PropertySetControl");
}

} // namespace

PropertySetControl::PropertySetControl(
    ifc::def::SchemaPset const* schemaPset, std::shared_ptr<Data> const& data,
    std::shared_ptr<qev::ui::Dialog> const& dialog,
    std::shared_ptr<PropertySetDefinitionFilterInterface> const& filter,
    std::shared_ptr<PropertyFormatterInterface> const& formatter, std::vector<std::string> const& contexts,
    std::shared_ptr<PropertyTypePropertySetAndPropertyNameQppOverrideInterface> const& qppOverride)
    : m_formatter(formatter)
    , m_data(data)
    , m_dialog(dialog)
    , m_schemaPset(schemaPset)
    , m_filter(filter)
    , m_qppOverride(qppOverride)
    , m_contexts(contexts)
{
}

PropertySetControl::~PropertySetControl() = default;

void PropertySetControl::reset()
{
    m_objects.clear();
    m_definitions.clear();
}

void PropertySetControl::setObject(std::shared_ptr<Data> const& data, std::shared_ptr<FcBase> const& object)
{
    if (m_filter)
        m_filter->setObject(object);
    if (m_formatter)
        m_formatter->setObject(data, object);
    setObjects(data, {object});
}

void PropertySetControl::setObjects(std::shared_ptr<Data> const& data,
                                    std::vector<std::shared_ptr<FcBase>> const& objects)
{
    // The argument may be the very list that the reset clears.
    auto const newObjects = objects;
    reset();
    m_data = data;
    m_objects = newObjects;
    if (!m_objects.empty()) {
        tellObject(m_objects.front());
        initSets();
    }
    refreshDisplay();
}

void PropertySetControl::show()
{
    if (auto const window = getWindow())
        window->show();
}

void PropertySetControl::hide()
{
    if (auto const window = getWindow())
        window->hide();
}

std::optional<std::string> PropertySetControl::getRelatedPropertyName(std::string const& setName,
                                                                      std::string const& propertyName) const
{
    auto const found =
        std::find_if(m_definitions.begin(), m_definitions.end(), [&setName](auto const& definition) {
            return definition && definition->getName() == setName;
        });
    if (found == m_definitions.end())
        return std::nullopt;
    for (auto const* const partners : {&(*found)->getTogglesToValues(), &(*found)->getValuesToToggles()}) {
        if (auto const partner = partners->find(propertyName); partner != partners->end())
            return partner->second;
    }
    return std::nullopt;
}

void PropertySetControl::notifyPropertySetPropertyChanged(std::string const& setName,
                                                          std::string const& propertyName,
                                                          std::set<std::size_t> const& objectIndices,
                                                          PropertyChangedNotificationType type)
{
    bool const concernsFormatter = type == PropertyChangedNotificationType::ValueChanged && m_formatter;
    if (concernsFormatter && !notifyFormatter(setName, propertyName, objectIndices))
        return;
    fireEvents(propertyChangedHandlers, setName, propertyName, objectIndices);
}

void PropertySetControl::initSets()
{
    if (m_objects.empty()) {
        reportFrom("initSets", "Object list is empty.");
        m_definitions.clear();
        return;
    }
    for (auto const& [name, info] : CommonSets(m_schemaPset).of(m_objects)) {
        m_definitions.push_back(PropertySetDefinition::create(
            info, [this]() -> decltype(auto) { return getObjectsBeingEdited(); }, m_formatter, m_filter,
            m_contexts, m_qppOverride));
        if (!m_definitions.back())
            reportFrom("initSets", "Should create grid property object");
    }
}

std::vector<std::shared_ptr<FcBase>> const& PropertySetControl::getObjectsBeingEdited() { return m_objects; }

void PropertySetControl::tellObject(std::shared_ptr<FcBase> const& object)
{
    if (m_filter)
        m_filter->setObject(object);
    if (m_formatter)
        m_formatter->setObject(m_data, object);
}

bool PropertySetControl::notifyFormatter(std::string const& setName, std::string const& propertyName,
                                         std::set<std::size_t> const& objectIndices)
{
    for (auto const index : objectIndices) {
        if (index >= m_objects.size()) {
            reportFrom("notifyPropertySetPropertyChanged", "Object index out of range.");
            return false;
        }
        m_formatter->setObject(m_data, m_objects[index]);
        auto const object = entityCast<FcObjectDefinition>(m_objects[index]);
        if (!object)
            continue;
        if (auto const set = object->getPropertySetDefinitionNonConst<FcPropertySet>(setName))
            m_formatter->onPropertySetPropertyChanged(set, propertyName);
        else
            reportFrom("notifyPropertySetPropertyChanged", "Property set doesn't exist.");
    }
    return true;
}

} // namespace qev::fc::ui
