#pragma once

#include "Object/ObjectInterface.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::object {

/// Answers for the properties of one object by id.
///
/// An id that the object does not know gets the neutral answer: nothing, false, an empty text.
class HOSTOBJECT_EXPORT PropertyInterface : public generate::ObjectInterface
{
public:
    ~PropertyInterface() override;

    /// The ids of all properties that are no headings.
    virtual std::set<PropertyId> getAllProperties() const = 0;
    /// A key of the object for stored settings of an editor; may be empty.
    virtual std::string getPropertiesObjectKey() const = 0;

    virtual void setValue(PropertyId const& id, PropertyValue const& value) = 0;
    virtual PropertyValue getValue(PropertyId const& id) const = 0;
    virtual bool isValueAllowed(PropertyId const& id, PropertyValue const& value) const = 0;
    virtual bool isEmptyValueAllowed(PropertyId const& id) const = 0;

    virtual bool hasQuantityPresentation(PropertyId const& id) const = 0;
    /// A new presentation, or null where the property has none.
    virtual std::unique_ptr<unit::QuantityPresentationBase>
    createQuantityPresentation(PropertyId const& id) const = 0;

    /// Whether the object itself holds the value, not something it takes values from.
    virtual bool isLocalValue(PropertyId const& id) const = 0;
    virtual void resetToGlobalValue(PropertyId const& id) = 0;

    /// The label in the current language.
    virtual std::string getPropertyName(PropertyId const& id) const = 0;
    virtual std::string getPropertyDescription(PropertyId const& id) const = 0;
    virtual std::string getPropertyValueDescription(PropertyId const& id) const = 0;
    virtual std::string getListIndexPrefix(PropertyId const& id) const = 0;

    /// Properties to be read again after this one was changed; none unless overridden.
    virtual std::vector<PropertyId> getDependentProperties(PropertyId const& id) const;
    /// Further words under which a search finds the property; none unless overridden.
    virtual std::vector<std::string> getSearchWords(PropertyId const& id) const;
    /// Values to offer beside free input; none unless overridden.
    virtual std::vector<PropertyValue> getSuggestedValues(PropertyId const& id) const;
    /// The value of a new object; no result unless overridden.
    virtual std::optional<PropertyValue> getDefaultValue(PropertyId const& id) const;
    /// What is wrong with the present value, for people; nothing unless overridden.
    virtual std::vector<std::string> getMessages(PropertyId const& id) const;

    /// Whether nothing of the object can be changed.
    virtual bool isReadOnly() const = 0;
    /// Whether the object can be edited together with others; true unless overridden.
    virtual bool isEditableWithOthers() const;

    virtual bool isPropertyReadOnly(PropertyId const& id) const = 0;
    /// Whether the property leads to another object.
    virtual bool isReference(PropertyId const& id) const = 0;
};

} // namespace qev::object
