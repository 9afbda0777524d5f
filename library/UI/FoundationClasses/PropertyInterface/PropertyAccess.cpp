#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include "FoundationClasses/FcBase.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/IsValueAllowed.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <utility>

namespace qev::fc::ui::propertyinterface {

using object::PropertyId;
using object::PropertyValue;

PropertyValue getValue(Data const& data, FcBase const& entity, PropertyId id,
                       std::optional<std::string> setName)
{
    GetValue visitor(data, std::move(id), std::move(setName));
    entity.accept(visitor);
    return std::move(visitor.value);
}

void setValue(Data& data, FcBase& entity, PropertyId id, PropertyValue const& value)
{
    SetValue visitor(data, std::move(id), value);
    entity.accept(visitor);
}

bool isValueAllowed(Data const& data, FcBase const& entity, PropertyId id, PropertyValue const& value)
{
    IsValueAllowed visitor(data, std::move(id), value);
    entity.accept(visitor);
    return visitor.allowed;
}

std::vector<std::shared_ptr<Property>> getProperties(FcBase const& entity)
{
    GetProperties visitor;
    entity.accept(visitor);
    return std::move(visitor.properties);
}

std::string getPropertyName(Data const& data, FcBase const& entity, PropertyId id,
                            std::optional<std::string> setName)
{
    GetPropertyName visitor(data, std::move(id), std::move(setName));
    entity.accept(visitor);
    return std::move(visitor.name);
}

std::string getPropertyDescription(FcBase const& entity, PropertyId id)
{
    GetPropertyDescription visitor(std::move(id));
    entity.accept(visitor);
    return std::move(visitor.description);
}

bool hasQuantityPresentation(FcBase const& entity, PropertyId id)
{
    HasQuantityPresentation visitor(std::move(id));
    entity.accept(visitor);
    return visitor.result;
}

std::unique_ptr<unit::QuantityPresentationBase> createQuantityPresentation(Data const& data,
                                                                           FcBase const& entity,
                                                                           PropertyId id,
                                                                           std::optional<std::string> setName)
{
    CreateQuantityPresentation visitor(data, std::move(setName), std::move(id));
    entity.accept(visitor);
    return std::move(visitor.presentation);
}

bool hasEnumeratedValues(FcBase const& entity, PropertyId id)
{
    HasEnumeratedValues visitor(std::move(id));
    entity.accept(visitor);
    return visitor.result;
}

std::vector<qev::ui::edit::ObjectPropertyEditControllerBase::EnumeratedValue>
getEnumeratedValues(FcBase const& entity, PropertyId id)
{
    GetEnumeratedValues visitor(std::move(id));
    entity.accept(visitor);
    return std::move(visitor.values);
}

EntityReference getReference(FcBase const& entity, PropertyId id)
{
    GetReference visitor(std::move(id));
    entity.accept(visitor);
    return std::move(visitor.reference);
}

} // namespace qev::fc::ui::propertyinterface
