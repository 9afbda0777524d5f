#include "FoundationClasses/FcBase.h"

#include "Core/String/Hash.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "FoundationClasses/AttributeOperations.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/FcVisitorBase.h"
#include "FoundationClasses/FcVisitorBaseNonConst.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/LocalValues.h"
#include "FoundationClasses/TextReader.h"
#include "Object/Property.h"

#include <algorithm>

namespace qev::fc {

namespace {

/// By class number.
std::vector<std::uint32_t> hashesOfNames(char const* EntityClass::*name)
{
    std::vector<std::uint32_t> hashes;
    for (unsigned int number = 0; number <= FcBase::idLast; ++number)
        hashes.push_back(str::fnv1a(entityClassFromNumber(number)->*name));
    return hashes;
}

std::string_view withoutPrefix(std::string_view schemaName)
{
    return schemaName.substr(0, 3) == "Ifc" ? schemaName.substr(3) : schemaName;
}

/// The descriptor of an attribute by its name, null when there is none.
AttributeDescriptor const* find(EntityClass const& entityClass, std::string_view name)
{
    unsigned int const slot = slotFromName(entityClass, name);
    return slot < entityClass.attributes.size() ? entityClass.attributes[slot] : nullptr;
}

/// Rows of the generic editor exist for what can be shown as one text.
bool isSimple(AttributeDescriptor const& attribute)
{
    return attribute.kind != ValueKind::Reference && attribute.kind != ValueKind::Select;
}

} // namespace

unsigned int slotFromName(EntityClass const& entityClass, std::string_view attribute)
{
    auto const found = std::find_if(
        entityClass.attributes.begin(), entityClass.attributes.end(),
        [attribute](AttributeDescriptor const* candidate) { return candidate->name == attribute; });
    return static_cast<unsigned int>(found - entityClass.attributes.begin());
}

FcBase::FcBase() = default;
FcBase::~FcBase() = default;

char const* FcBase::getEntityNameUpper() const { return getEntityClass().nameUpper; }
char const* FcBase::getEntityName() const { return getEntityClass().name; }
FcBase::HashedName FcBase::getEntityNameUpperHashed() const
{
    static std::vector<std::uint32_t> const hashes = hashesOfNames(&EntityClass::nameUpper);
    return {getEntityNameUpper(), hashes[getIdFirst()]};
}
FcBase::HashedName FcBase::getEntityNameHashed() const
{
    static std::vector<std::uint32_t> const hashes = hashesOfNames(&EntityClass::name);
    return {getEntityName(), hashes[getIdFirst()]};
}
char const* FcBase::getGroupName() const { return getEntityClass().group; }
char const* FcBase::getQualifiedGroupName() const { return getEntityClass().qualifiedGroup; }
unsigned int FcBase::getIdFirst() const { return getEntityClass().idFirst; }
unsigned int FcBase::getIdLast() const { return getEntityClass().idLast; }

void FcBase::accept(FcVisitorBaseNonConst& visitor) { visitor.visit(*this); }
void FcBase::accept(FcVisitorBase& visitor) const { visitor.visit(*this); }

EntityClass const& FcBase::staticEntityClass()
{
    static constexpr EntityClass entityClass{"FcBase", "FCBASE", "", "", 0,  idLast,
                                             true,     nullptr,  {}, 0,  {}, nullptr};
    return entityClass;
}

EntityClass const& FcBase::getEntityClass() const { return staticEntityClass(); }

std::shared_ptr<FcBase> FcBase::doAllocateCopy() const
{
    auto const create = getEntityClass().create;
    return create ? create() : nullptr;
}

void FcBase::doAssign(FcBase const& other, FcCopySettings&)
{
    auto const attributes = getEntityClass().attributes;
    for (unsigned int slot = 0; slot < attributes.size(); ++slot) {
        auto const& operations = *attributes[slot]->operations;
        operations.restore(attribute(slot), operations.snapshot(other.attribute(slot)).get());
    }
}

std::shared_ptr<FcBase> FcBase::copy(FcCopySettings settings) const
{
    auto result = doAllocateCopy();
    if (result)
        result->doAssign(*this, settings);
    return result;
}

AttributeBase& FcBase::attribute(unsigned int slot)
{
    return getEntityClass().attributes[slot]->access(*this);
}

AttributeBase const& FcBase::attribute(unsigned int slot) const
{
    return const_cast<FcBase*>(this)->attribute(slot);
}

bool FcBase::setAttributeFromString(std::string const& value, std::string const& name)
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), name);
    return descriptor && assignText(descriptor->access(*this), *descriptor, value);
}

std::optional<std::string> FcBase::getAttributeAsString(std::string const& name) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), name);
    if (!descriptor)
        return std::nullopt;
    return descriptor->operations->text(descriptor->access(const_cast<FcBase&>(*this)), *descriptor);
}

std::optional<double> FcBase::getAttributeAsSiUnit(Data const&, std::string const& name) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), name);
    if (!descriptor)
        return std::nullopt;
    return attributeNumber(descriptor->access(const_cast<FcBase&>(*this)), *descriptor);
}

void FcBase::clearInverseAttributes()
{
    if (m_data)
        m_data->clearInverseIndexes();
}

void FcBase::forEachEntity(std::function<void(std::shared_ptr<FcBase> const&)> const& visit) const
{
    auto const attributes = getEntityClass().attributes;
    for (unsigned int slot = 0; slot < attributes.size(); ++slot) {
        attributes[slot]->operations->visitReferences(attribute(slot),
                                                      [&visit](ReferenceBase const& reference) {
                                                          if (auto const entity = reference.entity())
                                                              visit(entity);
                                                      });
    }
}

LocalValue FcBase::getLocalValue(object::PropertyId const& id) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), id.text());
    if (!descriptor)
        return {};
    return localValueOf(descriptor->access(const_cast<FcBase&>(*this)), *descriptor);
}

bool FcBase::setLocalValue(LocalValue const& value, object::PropertyId const& id)
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), id.text());
    return descriptor && assignLocalValue(descriptor->access(*this), *descriptor, value);
}

bool FcBase::isOptional(object::PropertyId const& id) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), id.text());
    return descriptor && descriptor->isOptional;
}

bool FcBase::hasQuantityPresentationLocal(object::PropertyId const& id) const
{
    return createQuantityPresentationLocal(id) != nullptr;
}

std::unique_ptr<unit::QuantityPresentationBase>
FcBase::createQuantityPresentationLocal(object::PropertyId const& id) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), id.text());
    if (!descriptor || descriptor->depth != 0 || descriptor->kind != ValueKind::Real)
        return nullptr;
    return unit::createPresentationForMeasure(withoutPrefix(descriptor->typeName));
}

std::string FcBase::getPropertyName(object::PropertyId const& id) const
{
    return localizeWithFallback(std::string(getEntityName()) + "." + id.text(),
                                localizeWithFallback(id.text(), id.text()));
}

std::string FcBase::getPropertyDescription(object::PropertyId const& id) const
{
    return localizeWithFallback(std::string(getEntityName()) + "." + id.text() + "_Description", "");
}

std::vector<std::shared_ptr<Property>> FcBase::getLocalProperties() const
{
    std::vector<std::shared_ptr<Property>> properties;
    for (AttributeDescriptor const* const descriptor : getEntityClass().attributes) {
        if (!isSimple(*descriptor))
            continue;
        auto property = std::make_shared<Property>();
        property->id = object::PropertyId(std::string(descriptor->name));
        property->object = std::const_pointer_cast<FcBase>(shared_from_this());
        properties.push_back(std::move(property));
    }
    return properties;
}

std::vector<std::string> FcBase::getEnumeratedValuesLocal(object::PropertyId const& id) const
{
    AttributeDescriptor const* const descriptor = find(getEntityClass(), id.text());
    if (!descriptor || !descriptor->enumeration)
        return {};
    auto const items = descriptor->enumeration->items;
    return {items.begin(), items.end()};
}

bool FcBase::isLessThanSkipAttributes(FcBase const& other, std::vector<std::string> const& skipped) const
{
    if (getIdFirst() != other.getIdFirst())
        return getIdFirst() < other.getIdFirst();
    for (AttributeDescriptor const* const descriptor : getEntityClass().attributes) {
        if (std::find(skipped.begin(), skipped.end(), descriptor->name) != skipped.end())
            continue;
        int const order = compareAttributes(descriptor->access(const_cast<FcBase&>(*this)),
                                            descriptor->access(const_cast<FcBase&>(other)), *descriptor);
        if (order != 0)
            return order < 0;
    }
    return false;
}

std::vector<std::shared_ptr<FcBase>> FcBase::relating(InverseDescriptor const& inverse) const
{
    std::vector<std::shared_ptr<FcBase>> result;
    if (!m_data)
        return result;
    for (EntityIndex const index :
         m_data->relating(m_index, inverse.relationFirst, inverse.relationLast, inverse.slot)) {
        if (auto entity = m_data->entity(index))
            result.push_back(std::move(entity));
    }
    return result;
}

} // namespace qev::fc
