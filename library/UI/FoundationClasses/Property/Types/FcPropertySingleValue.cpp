#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "Format/Ifc/IfcHelperFunction.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyReferenceValue.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "UI/FoundationClasses/NumberTexts.h"
#include "UI/FoundationClasses/Property/FindProperty.h"
#include "UI/FoundationClasses/Property/MeasurePresentation.h"
#include "UI/FoundationClasses/Property/ObjectDefinitions.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

#include <utility>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using resource::measure::FcValue;
using ModelProperty = resource::property::FcPropertySingleValue;

FcPropertySingleValue::FcPropertySingleValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                                             std::vector<std::string> const& contexts)
    : FcPropertyBase(definition, set, contexts)
{
}

FcPropertySingleValue::~FcPropertySingleValue() = default;

bool FcPropertySingleValue::isAllowedToEdit() const { return true; }

bool FcPropertySingleValue::isValidValue() const { return true; }

std::string FcPropertySingleValue::getValue() const
{
    auto const& value = getFcValue();
    if (auto const presentation = quantityPresentation()) {
        presentation->setValue(value.valueAsDoubleGet().value_or(0.0));
        return presentation->text();
    }
    if (value.isEmpty())
        return {};
    return getFcValueAsString(value).value_or(std::string());
}

FcValue const& FcPropertySingleValue::getFcValue() const
{
    auto const setName = getPropertySetName();
    auto const name = getName();
    FcValue const* common = nullptr;
    bool agree = true;
    forEachObjectDefinition(getObjects(), "qev::fc::ui::FcPropertySingleValue::getFcValue",
                            "UI/FoundationClasses/Property/Types/FcPropertySingleValue",
                            [&](FcObjectDefinition& object) {
                                auto const property = findProperty<ModelProperty>(object, setName, name);
                                if (!property)
                                    return agree = false;
                                auto const& own = property->NominalValue.get();
                                agree = !common || (!(own < *common) && !(*common < own));
                                if (!common)
                                    common = &own;
                                return agree;
                            });
    return agree && common ? *common : getEmptyFcValue();
}

bool FcPropertySingleValue::wouldTake(PropertyOrQuantityValue const& value) const
{
    if (value.isClearing())
        return true;
    auto const setName = getPropertySetName();
    auto const name = getName();
    bool isTaken = true;
    forEachObjectDefinition(
        getObjects(), "qev::fc::ui::FcPropertySingleValue::wouldTake",
        "UI/FoundationClasses/Property/Types/FcPropertySingleValue", [&](FcObjectDefinition& object) {
            auto const property = findProperty<ModelProperty>(object, setName, name);
            auto const& present = property ? property->NominalValue.get() : getEmptyFcValue();
            return isTaken = editedValue(value, present).has_value();
        });
    return isTaken;
}

std::unique_ptr<unit::QuantityPresentationBase> FcPropertySingleValue::quantityPresentation() const
{
    auto const typeName = getPropertyTypeName();
    auto const setName = getPropertySetName();
    auto const name = getName();
    if (auto presentation = getSet().quantityPresentationOverride(typeName, setName, name))
        return presentation;
    using Factory = unit::QuantityPresentationFactory;
    auto presentation = Factory::createNewBaseUniqueFromIfcPropertyIdWithSanityCheck(
        nullptr, setName + "." + name, std::string());
    return presentation ? std::move(presentation) : presentationOfPropertyMeasure(typeName);
}

bool FcPropertySingleValue::setNewValue(PropertyOrQuantityValue const& value, FcPropertySet& set,
                                        FcObjectDefinition& /*object*/)
{
    // The value is tried before anything is made: a refused edit leaves no property behind.
    auto const existing = findProperty<ModelProperty>(set, getName());
    auto edited = editedValue(value, existing ? existing->NominalValue.get() : getEmptyFcValue());
    if (!edited)
        return false;
    auto const property = getSingleValueProperty(set);
    if (!property)
        return false;
    if (property->NominalValue.get() != *edited)
        property->NominalValue = *std::move(edited);
    return true;
}

std::optional<std::string> FcPropertySingleValue::getFcValueAsString(FcValue const& value) const
{
    if (auto const number = value.valueAsDoubleGet())
        return sixDecimalText(*number);
    return value.getAsString(false);
}

std::shared_ptr<ModelProperty> FcPropertySingleValue::getSingleValueProperty(FcPropertySet& set)
{
    auto property = findProperty<ModelProperty>(set, getName());
    if (!property)
        property = addNewProperty<ModelProperty>(set, getName());
    if (!property) {
        reportUncreatedProperty();
        return nullptr;
    }
    if (property->NominalValue.get().isEmpty()) {
        auto typed = withType({});
        if (!typed.isEmpty())
            property->NominalValue = std::move(typed);
    }
    return property;
}

std::string FcPropertySingleValue::getPropertyTypeName() const
{
    using ValueType = ifc::def::pset::TypePropertyReferenceValue;
    auto const* const type = dynamic_cast<ValueType const*>(getActivePropertyDefinition().propertyType.get());
    if (!type || type->valueType.empty())
        return {};
    return ifc::details::removePrefix(type->valueType);
}

FcValue FcPropertySingleValue::withType(FcValue value) const
{
    auto const typeName = getPropertyTypeName();
    if (value.isEmpty() && !typeName.empty())
        value.setTypeFromString(typeName);
    return value;
}

std::optional<FcValue> FcPropertySingleValue::editedValue(PropertyOrQuantityValue const& value,
                                                          FcValue const& present) const
{
    auto edited = withType(present);
    bool const isTaken = value.quantityValue ? edited.setDoubleValue(*value.quantityValue)
                                             : edited.setValueOnTypeFromString(value.getStringValue());
    if (!isTaken)
        return std::nullopt;
    return edited;
}

} // namespace qev::fc::ui
