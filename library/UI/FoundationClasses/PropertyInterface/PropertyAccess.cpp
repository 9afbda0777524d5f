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

#include <algorithm>
#include <utility>

namespace qev::fc::ui::propertyinterface {

using object::PropertyId;
using object::PropertyValue;

namespace {

/// An entity whose rows are being listed. Broken files have groups that are in themselves, by way of others;
/// such an entity is not listed again below itself.
class ListingInProgress
{
public:
    explicit ListingInProgress(FcBase const& entity)
        : m_isRepeated(std::find(entities().begin(), entities().end(), &entity) != entities().end())
    {
        entities().push_back(&entity);
    }
    ~ListingInProgress() { entities().pop_back(); }
    ListingInProgress(ListingInProgress const&) = delete;
    ListingInProgress& operator=(ListingInProgress const&) = delete;

    [[nodiscard]] bool isRepeated() const { return m_isRepeated; }

private:
    /// From the outermost to the innermost.
    static std::vector<FcBase const*>& entities()
    {
        thread_local std::vector<FcBase const*> inProgress;
        return inProgress;
    }

    bool m_isRepeated;
};

} // namespace

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
    ListingInProgress const listing(entity);
    if (listing.isRepeated())
        return {};
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
