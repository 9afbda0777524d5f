#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"
#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <string_view>

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using resource::property::FcPropertyTableValue;
using shared::sharedbldgserviceelements::FcDistributionPort;

namespace {

constexpr std::string_view setsSegment = "PropertySets";
constexpr std::string_view setsPrefix = "PropertySets.";

std::vector<std::string_view> segmentsOf(std::string_view path)
{
    std::vector<std::string_view> segments;
    for (;;) {
        auto const end = path.find('.');
        segments.push_back(path.substr(0, end));
        if (end == std::string_view::npos)
            return segments;
        path.remove_prefix(end + 1);
    }
}

/// The set that a path leads through; nothing for a path outside of the sets.
std::optional<std::string> setNameOf(object::PropertyId const& id)
{
    auto const segments = segmentsOf(id.text());
    bool const isBelowSet = segments.size() >= 3 && segments[0] == setsSegment;
    return isBelowSet ? std::optional<std::string>(segments[1]) : std::nullopt;
}

/// The label of a property by its names alone, for properties that are not there.
std::string labelWithoutProperty(object::PropertyId const& id)
{
    auto const begin = id.text().find(setsPrefix);
    if (begin == std::string::npos)
        return {};
    auto const names = std::string_view(id.text()).substr(begin + setsPrefix.size());
    return segmentsOf(names).size() == 2 ? localize(names) : std::string();
}

std::string listSegment(Property const& element, std::size_t position)
{
    if (auto const entity = std::dynamic_pointer_cast<FcBase>(element.object)) {
        GetListIndexPrefix visitor(element.id);
        static_cast<FcBase const&>(*entity).accept(visitor);
        if (!visitor.prefix.empty())
            return visitor.prefix;
    }
    return std::to_string(position);
}

std::string joined(std::string const& path, std::string const& segment)
{
    return path.empty() ? segment : path + '.' + segment;
}

} // namespace

struct FcPropertyWrapper::Owner
{
    std::shared_ptr<Data> data;
    std::shared_ptr<FcBase> object;
    std::shared_ptr<FcPropertyWrapper> wrapper;
};

FcPropertyWrapper::FcPropertyWrapper(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object)
    : m_data(std::move(data))
    , m_object(std::move(object))
{
}

FcPropertyWrapper::~FcPropertyWrapper() = default;

std::shared_ptr<FcPropertyWrapper>
FcPropertyWrapper::createStrongOwningFcPropertyWrapper(std::shared_ptr<Data> data,
                                                       std::shared_ptr<FcBase> object)
{
    auto const owner = std::make_shared<Owner>();
    owner->data = std::move(data);
    owner->object = std::move(object);
    owner->wrapper = std::make_shared<FcPropertyWrapper>(owner->data, owner->object);
    return {owner, owner->wrapper.get()};
}

// --- The tree ---------------------------------------------------------------------------------------

std::vector<std::shared_ptr<Property>> FcPropertyWrapper::getObjectProperties() const
{
    auto const entity = m_object.lock();
    if (!entity)
        return {};
    return propertyinterface::getProperties(*entity);
}

bool FcPropertyWrapper::beginsPathsWithTopLevelId() const { return false; }

std::vector<std::shared_ptr<Property>> FcPropertyWrapper::getProperties() const
{
    m_mappedProperties.clear();
    m_allProperties.clear();
    m_properties.clear();
    for (auto const& node : getObjectProperties()) {
        auto top = std::make_shared<Property>();
        top->id = node->id;
        m_properties.push_back(top);
        map(*node, *top, beginsPathsWithTopLevelId() ? node->id.text() : std::string());
    }
    return m_properties;
}

void FcPropertyWrapper::map(Property const& source, Property& target, std::string const& path) const
{
    m_mappedProperties[target.id] = {source.mappedId.value_or(source.id), source.object};
    if (!source.isGroup && source.children.empty())
        m_allProperties.insert(target.id);
    for (std::size_t position = 0; position < source.children.size(); ++position) {
        Property const& child = *source.children[position];
        auto const childPath = joined(path, source.isList ? listSegment(child, position) : child.id.text());
        auto node = std::make_shared<Property>();
        node->id = PropertyId(childPath);
        node->isGroup = child.isGroup;
        node->object = child.object;
        node->standalone = child.standalone;
        target.children.push_back(node);
        map(child, *node, childPath);
    }
}

void FcPropertyWrapper::buildProperties() const
{
    static_cast<void>(getProperties());
    m_propertiesBuilt = true;
}

void FcPropertyWrapper::buildIfNeeded() const
{
    if (!m_propertiesBuilt)
        buildProperties();
}

void FcPropertyWrapper::clearCache()
{
    m_mappedProperties.clear();
    m_allProperties.clear();
    m_properties.clear();
    m_propertiesBuilt = false;
}

// --- From paths to objects --------------------------------------------------------------------------

FcPropertyWrapper::PropertyOwner FcPropertyWrapper::getMappedProperty(PropertyId const& id) const
{
    buildIfNeeded();
    auto const found = m_mappedProperties.find(id);
    if (found == m_mappedProperties.end())
        return getPropertyBehindReference(id);
    auto const& [localId, weakObject] = found->second;
    auto const object = weakObject.lock();
    if (auto entity = std::dynamic_pointer_cast<FcBase>(object))
        return {std::move(entity), nullptr, localId};
    return {nullptr, std::dynamic_pointer_cast<PropertyInterface>(object), localId};
}

FcPropertyWrapper::PropertyOwner FcPropertyWrapper::getPropertyBehindReference(PropertyId const& id) const
{
    auto const entity = m_object.lock();
    auto const dot = id.text().find('.');
    if (!entity || dot == std::string::npos)
        return {};
    auto const reference = propertyinterface::getReference(*entity, PropertyId(id.text().substr(0, dot)));
    auto const* const referred = std::get_if<std::shared_ptr<FcBase const>>(&reference);
    auto const data = m_data.lock();
    if (!data || !referred || !*referred)
        return {};
    FcPropertyWrapper const behind(data, std::const_pointer_cast<FcBase>(*referred));
    return behind.getMappedProperty(PropertyId(id.text().substr(dot + 1)));
}

std::shared_ptr<FcBase> FcPropertyWrapper::getEntity(PropertyId const& id) const
{
    return std::get<std::shared_ptr<FcBase>>(getMappedProperty(id));
}

std::optional<std::pair<object::PropertyId, std::shared_ptr<generate::ObjectInterface>>>
FcPropertyWrapper::getMappedData(PropertyId const& id) const
{
    buildIfNeeded();
    auto const found = m_mappedProperties.find(id);
    if (m_data.expired() || found == m_mappedProperties.end())
        return std::nullopt;
    auto object = found->second.second.lock();
    return object ? std::optional(std::pair(found->second.first, std::move(object))) : std::nullopt;
}

std::optional<object::PropertyId> FcPropertyWrapper::getMappedId(PropertyId const& localId,
                                                                 std::shared_ptr<FcBase> const& owner) const
{
    buildIfNeeded();
    for (auto const& [path, mapped] : m_mappedProperties) {
        if (mapped.first != localId)
            continue;
        auto const object = mapped.second.lock();
        if (object && object == owner)
            return path;
    }
    return std::nullopt;
}

bool FcPropertyWrapper::hasMappedId(PropertyId const& localId, std::shared_ptr<FcBase> const& owner) const
{
    return getMappedId(localId, owner).has_value();
}

// --- Questions --------------------------------------------------------------------------------------

std::set<object::PropertyId> FcPropertyWrapper::getAllProperties() const
{
    buildIfNeeded();
    return m_allProperties;
}

std::string FcPropertyWrapper::getPropertiesObjectKey() const { return {}; }

object::PropertyValue FcPropertyWrapper::getValue(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return other ? other->getValue(localId) : PropertyValue();
    auto const data = m_data.lock();
    return data ? propertyinterface::getValue(*data, *entity, localId, setNameOf(id)) : PropertyValue();
}

void FcPropertyWrapper::setValue(PropertyId const& id, PropertyValue const& value)
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity) {
        if (other)
            other->setValue(localId, value);
        return;
    }
    if (auto const data = m_data.lock())
        propertyinterface::setValue(*data, *entity, localId, value);
}

bool FcPropertyWrapper::isValueAllowed(PropertyId const& id, PropertyValue const& value) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return !other || other->isValueAllowed(localId, value);
    auto const data = m_data.lock();
    return !data || propertyinterface::isValueAllowed(*data, *entity, localId, value);
}

bool FcPropertyWrapper::isEmptyValueAllowed(PropertyId const& id) const
{
    return id.text().find(setsPrefix) != std::string::npos;
}

bool FcPropertyWrapper::hasQuantityPresentation(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return other && other->hasQuantityPresentation(localId);
    return propertyinterface::hasQuantityPresentation(*entity, localId);
}

std::unique_ptr<unit::QuantityPresentationBase>
FcPropertyWrapper::createQuantityPresentation(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return other ? other->createQuantityPresentation(localId) : nullptr;
    auto const data = m_data.lock();
    return data ? propertyinterface::createQuantityPresentation(*data, *entity, localId, setNameOf(id))
                : nullptr;
}

bool FcPropertyWrapper::isLocalValue(PropertyId const&) const { return false; }

void FcPropertyWrapper::resetToGlobalValue(PropertyId const&) {}

std::string FcPropertyWrapper::getPropertyName(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return other ? other->getPropertyName(localId) : labelWithoutProperty(id);
    auto const data = m_data.lock();
    return data ? propertyinterface::getPropertyName(*data, *entity, localId, setNameOf(id))
                : labelWithoutProperty(id);
}

std::string FcPropertyWrapper::getPropertyDescription(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    if (!entity)
        return other ? other->getPropertyDescription(localId) : std::string();
    return propertyinterface::getPropertyDescription(*entity, localId);
}

std::string FcPropertyWrapper::getPropertyValueDescription(PropertyId const&) const { return {}; }

std::string FcPropertyWrapper::getListIndexPrefix(PropertyId const&) const { return {}; }

bool FcPropertyWrapper::hasEnumeratedValues(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    return entity && propertyinterface::hasEnumeratedValues(*entity, localId);
}

std::vector<FcPropertyWrapper::EnumeratedValue>
FcPropertyWrapper::getEnumeratedValues(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    return entity ? propertyinterface::getEnumeratedValues(*entity, localId) : std::vector<EnumeratedValue>();
}

EntityReference FcPropertyWrapper::getReference(PropertyId const& id) const
{
    auto const [entity, other, localId] = getMappedProperty(id);
    return entity ? propertyinterface::getReference(*entity, localId) : EntityReference();
}

bool FcPropertyWrapper::isReference(PropertyId const& id) const
{
    return !std::holds_alternative<std::monostate>(getReference(id));
}

// --- What can be edited -----------------------------------------------------------------------------

bool FcPropertyWrapper::isReadOnly() const { return m_readOnly; }

bool FcPropertyWrapper::isPropertyReadOnly(PropertyId const& id) const
{
    if (m_readOnly)
        return true;
    if (id.text().find("PredefinedType") != std::string::npos)
        return isPredefinedTypeReadOnly(id);
    auto const entity = getEntity(id);
    return entity && isOfClass<FcPropertyTableValue>(*entity);
}

/// A predefined type can be chosen once; which sets apply depends on it.
bool FcPropertyWrapper::isPredefinedTypeReadOnly(PropertyId const& id) const
{
    auto const object = entityCast<FcObjectDefinition>(m_object.lock());
    if (object && object->predefinedTypeDerived() == "NOTDEFINED")
        return false;
    auto const entity = getEntity(id);
    if (!entity || entity->getIdFirst() != FcDistributionPort::idFirst)
        return true;
    auto const port = entityCast<FcDistributionPort>(entity);
    return !port->getPropertySetDefinitions<FcPropertySet>().empty();
}

} // namespace qev::fc::ui::propertyinterface
