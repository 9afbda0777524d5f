#include "FoundationClasses/Resource/Property/FcProperty.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"

#include <utility>

namespace qev::fc::resource::property {

namespace {

/// Material and profile properties hold properties too; the standard has no inverse attribute for them.
std::vector<std::shared_ptr<FcExtendedProperties>> extendedPropertiesOf(Data& data, EntityIndex property)
{
    static unsigned int const slot = slotFromName(FcExtendedProperties::staticEntityClass(), "Properties");
    std::vector<std::shared_ptr<FcExtendedProperties>> holders;
    for (EntityIndex const index :
         data.relating(property, FcExtendedProperties::idFirst, FcExtendedProperties::idLast, slot)) {
        if (auto holder = entityCast<FcExtendedProperties>(data.entity(index)))
            holders.push_back(std::move(holder));
    }
    return holders;
}

} // namespace

void FcProperty::deleteProperty(Data& data, bool deleteEmptySets)
{
    ChangeLog::Step const step(data.changes(), "Delete property");
    auto const self = std::static_pointer_cast<FcProperty>(shared_from_this());
    for (auto const& reference : PartOfComplex()) {
        if (auto const complex = reference.lock())
            complex->HasProperties.edit([&self](auto& list) { list.erase(self); });
    }
    for (auto const& holder : extendedPropertiesOf(data, getIndex()))
        holder->Properties.edit([&self](auto& list) { list.erase(self); });
    for (auto const& reference : PartOfPset()) {
        auto const set = reference.lock();
        if (!set)
            continue;
        set->HasProperties.edit([&self](auto& list) { list.erase(self); });
        if (deleteEmptySets && set->HasProperties.getProperties().empty())
            set->deletePset(data);
    }
    data.entityDelete(self);
}

std::unique_ptr<unit::QuantityPresentationBase>
FcProperty::createQuantityPresentationFor(measure::FcValue const& value,
                                          std::optional<std::string> const& setName) const
{
    std::unique_ptr<unit::QuantityPresentationBase> presentation;
    if (setName)
        presentation = unit::QuantityPresentationFactory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
            nullptr, *setName + "." + Name.get(), "");
    if (!presentation)
        presentation = value.createQuantityPresentation();
    if (presentation)
        presentation->setValue(value.valueAsDoubleGet().value_or(0.0));
    return presentation;
}

} // namespace qev::fc::resource::property
