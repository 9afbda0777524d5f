#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"
#include "Object/Property.h"
#include "Object/PropertyInterface.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/PropertyInterface/EntityReference.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc

namespace qev::fc::ui::propertyinterface {

/// An entity and everything reachable below it as properties with path ids.
///
/// A path joins the ids of the nodes below the entity's own heading: "Name",
/// "PropertySets.Pset_WallCommon.FireRating". Below a list stands the prefix that the element gives, or else
/// its position from 0: "Materials.0.Name". A path may run on through a reference into the properties of
/// another entity, which are no part of this tree.
///
/// The tree is kept from the first question on. A model that gained or lost properties has to be told of by
/// `clearCache`; a changed value need not.
///
/// Ownership: the wrapper keeps neither the model nor the entity alive, but a tree once built holds the
/// objects of its nodes. Once the model or the entity is gone, every answer is the neutral one.
class QEVFOUNDATIONCLASSESUI_EXPORT FcPropertyWrapper : public object::PropertyInterface,
                                                        public std::enable_shared_from_this<FcPropertyWrapper>
{
public:
    using PropertyId = object::PropertyId;
    using PropertyValue = object::PropertyValue;
    using EnumeratedValue = qev::ui::edit::ObjectPropertyEditControllerBase::EnumeratedValue;
    /// Who answers for a property, an entity or some other object that has properties, and by which id.
    using PropertyOwner =
        std::tuple<std::shared_ptr<FcBase>, std::shared_ptr<object::PropertyInterface>, PropertyId>;

    FcPropertyWrapper(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object);
    ~FcPropertyWrapper() override;

    /// A wrapper that keeps the model and the entity alive for as long as the result is held.
    static std::shared_ptr<FcPropertyWrapper>
    createStrongOwningFcPropertyWrapper(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object);

    std::set<PropertyId> getAllProperties() const override;
    std::string getPropertiesObjectKey() const override;
    void setValue(PropertyId const& id, PropertyValue const& value) override;
    PropertyValue getValue(PropertyId const& id) const override;
    bool isValueAllowed(PropertyId const& id, PropertyValue const& value) const override;
    /// True for the properties of sets; an attribute always keeps a value.
    bool isEmptyValueAllowed(PropertyId const& id) const override;
    bool hasQuantityPresentation(PropertyId const& id) const override;
    std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentation(PropertyId const& id) const override;
    bool isLocalValue(PropertyId const& id) const override;
    void resetToGlobalValue(PropertyId const& id) override;
    /// The label. A property of a set that the entity does not have is labelled all the same.
    std::string getPropertyName(PropertyId const& id) const override;
    std::string getPropertyDescription(PropertyId const& id) const override;
    std::string getPropertyValueDescription(PropertyId const& id) const override;
    std::string getListIndexPrefix(PropertyId const& id) const override;
    bool isReadOnly() const override;
    bool isPropertyReadOnly(PropertyId const& id) const override;
    bool isReference(PropertyId const& id) const override;

    /// The model; null once it is gone.
    [[nodiscard]] std::shared_ptr<Data> getData() const { return m_data.lock(); }
    /// The wrapped entity; null once it is gone.
    [[nodiscard]] std::shared_ptr<FcBase> getObject() const { return m_object.lock(); }

    /// Read-only at the start. An editor that can write clears it.
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }

    /// Builds the tree anew and gives its top level. Its ids are paths, except at the top level, whose ids
    /// are no part of any path.
    std::vector<std::shared_ptr<Property>> getProperties() const;
    /// Forgets the tree; it is built again when next needed.
    void clearCache();

    /// Who answers for a path. Both objects are null where the path leads nowhere.
    PropertyOwner getMappedProperty(PropertyId const& id) const;
    /// The first path, in the order of paths, at which \p owner answers by \p localId.
    std::optional<PropertyId> getMappedId(PropertyId const& localId,
                                          std::shared_ptr<FcBase> const& owner) const;
    bool hasMappedId(PropertyId const& localId, std::shared_ptr<FcBase> const& owner) const;

    bool hasEnumeratedValues(PropertyId const& id) const;
    std::vector<EnumeratedValue> getEnumeratedValues(PropertyId const& id) const;
    EntityReference getReference(PropertyId const& id) const;

protected:
    /// The tree by the objects' own ids; empty when the entity is gone.
    virtual std::vector<std::shared_ptr<Property>> getObjectProperties() const;
    /// Whether the id of a top-level node begins the paths below it.
    virtual bool beginsPathsWithTopLevelId() const;

    /// What stands behind a path of the tree itself; nothing once the model or the object is gone.
    std::optional<std::pair<PropertyId, std::shared_ptr<generate::ObjectInterface>>>
    getMappedData(PropertyId const& id) const;

private:
    struct Owner;
    /// The id local to an object, and that object.
    using MappedProperty = std::pair<PropertyId, std::weak_ptr<generate::ObjectInterface>>;

    void buildProperties() const;
    void buildIfNeeded() const;
    void map(Property const& source, Property& target, std::string const& path) const;
    PropertyOwner getPropertyBehindReference(PropertyId const& id) const;
    std::shared_ptr<FcBase> getEntity(PropertyId const& id) const;
    bool isPredefinedTypeReadOnly(PropertyId const& id) const;

    std::weak_ptr<Data> m_data;
    std::weak_ptr<FcBase> m_object;
    mutable std::map<PropertyId, MappedProperty> m_mappedProperties;
    mutable std::set<PropertyId> m_allProperties;
    mutable std::vector<std::shared_ptr<Property>> m_properties;
    bool m_readOnly = true;
    mutable bool m_propertiesBuilt = false;
};

} // namespace qev::fc::ui::propertyinterface
