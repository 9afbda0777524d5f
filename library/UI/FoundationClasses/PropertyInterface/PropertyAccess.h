#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"
#include "Object/Property.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/PropertyInterface/EntityReference.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc
namespace qev::unit {
class QuantityPresentationBase;
}

/// Access to the properties of one entity by its own ids, whatever class it is of.
///
/// Each function runs the visitor of its name over the entity, from its exact class up to `FcBase`. An id
/// that no class knows gives the neutral answer: nothing, false, an empty text.
namespace qev::fc::ui::propertyinterface {

QEVFOUNDATIONCLASSESUI_EXPORT object::PropertyValue
getValue(Data const& data, FcBase const& entity, object::PropertyId id, std::optional<std::string> setName);

/// A value that the property does not take is dropped.
QEVFOUNDATIONCLASSESUI_EXPORT void setValue(Data& data, FcBase& entity, object::PropertyId id,
                                            object::PropertyValue const& value);

/// True unless a class of the entity says otherwise.
QEVFOUNDATIONCLASSESUI_EXPORT bool isValueAllowed(Data const& data, FcBase const& entity,
                                                  object::PropertyId id, object::PropertyValue const& value);

/// The rows of an entity that is held by a shared pointer, as most often below one group node. An entity that
/// contains itself is not listed again below itself.
/// \throws std::bad_weak_ptr for an entity that is not
QEVFOUNDATIONCLASSESUI_EXPORT std::vector<std::shared_ptr<Property>> getProperties(FcBase const& entity);

/// The label in the current language.
QEVFOUNDATIONCLASSESUI_EXPORT std::string getPropertyName(Data const& data, FcBase const& entity,
                                                          object::PropertyId id,
                                                          std::optional<std::string> setName);
QEVFOUNDATIONCLASSESUI_EXPORT std::string getPropertyDescription(FcBase const& entity, object::PropertyId id);

QEVFOUNDATIONCLASSESUI_EXPORT bool hasQuantityPresentation(FcBase const& entity, object::PropertyId id);
/// Null where the property has none.
QEVFOUNDATIONCLASSESUI_EXPORT std::unique_ptr<unit::QuantityPresentationBase>
createQuantityPresentation(Data const& data, FcBase const& entity, object::PropertyId id,
                           std::optional<std::string> setName);

QEVFOUNDATIONCLASSESUI_EXPORT bool hasEnumeratedValues(FcBase const& entity, object::PropertyId id);
QEVFOUNDATIONCLASSESUI_EXPORT std::vector<qev::ui::edit::ObjectPropertyEditControllerBase::EnumeratedValue>
getEnumeratedValues(FcBase const& entity, object::PropertyId id);

QEVFOUNDATIONCLASSESUI_EXPORT EntityReference getReference(FcBase const& entity, object::PropertyId id);

} // namespace qev::fc::ui::propertyinterface
