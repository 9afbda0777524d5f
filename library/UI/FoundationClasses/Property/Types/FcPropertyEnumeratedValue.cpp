#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"

#include "Core/Assert/Assert.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/LocalizedText.h"
#include "UI/FoundationClasses/Property/FindProperty.h"
#include "UI/FoundationClasses/Property/ObjectDefinitions.h"
#include "UI/FoundationClasses/Set/PropertySet.h"

#include <algorithm>
#include <utility>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySet;
using resource::measure::FcLabel;
using resource::measure::FcSimpleValue;
using resource::measure::FcValue;
using ModelProperty = resource::property::FcPropertyEnumeratedValue;

namespace {

constexpr char path[] = "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue";

bool isLabel(FcValue const& value)
{
    return value.discriminator() == FcValue::Simple &&
           value.simpleValue().type() == FcSimpleValue::Types::Label;
}

FcValue label(std::string const& text) { return FcValue(FcSimpleValue(FcLabel(text))); }

void storeFirst(ModelProperty& property, std::string const& text)
{
    auto const& values = *property.EnumerationValues.get();
    if (values.size() > 1)
        assert::report("Currently only support for enumerated values containing one entry.",
                       "qev::fc::ui::FcPropertyEnumeratedValue::setNewValue", path);
    if (values.empty() || !isLabel(values.front()) || values.front() == label(text))
        return;
    auto edited = values;
    edited.front() = label(text);
    property.EnumerationValues = std::move(edited);
}

} // namespace

FcPropertyEnumeratedValue::FcPropertyEnumeratedValue(ifc::def::pset::PropertyDef& definition,
                                                     PropertySet& set,
                                                     std::vector<std::string> const& contexts)
    : FcPropertyBase(definition, set, contexts)
{
}

FcPropertyEnumeratedValue::~FcPropertyEnumeratedValue() = default;

bool FcPropertyEnumeratedValue::isAllowedToEdit() const { return true; }

bool FcPropertyEnumeratedValue::isValidValue() const { return true; }

std::string FcPropertyEnumeratedValue::getValue() const
{
    return commonText(getObjects(), "qev::fc::ui::FcPropertyEnumeratedValue::getValue", path,
                      [this](FcObjectDefinition& object) { return textOf(object); });
}

std::vector<std::string> FcPropertyEnumeratedValue::getEnumeratedValues() const
{
    using EnumeratedType = ifc::def::pset::TypePropertyEnumeratedValue;
    auto const* const type =
        dynamic_cast<EnumeratedType const*>(getActivePropertyDefinition().propertyType.get());
    return type ? type->values : std::vector<std::string>();
}

std::vector<std::string> FcPropertyEnumeratedValue::getLocalizedEnumeratedValues() const
{
    auto values = getEnumeratedValues();
    for (auto& value : values)
        value = localizedValue(value);
    return values;
}

bool FcPropertyEnumeratedValue::setNewValue(PropertyOrQuantityValue const& value, FcPropertySet& set,
                                            FcObjectDefinition& /*object*/)
{
    auto property = findProperty<ModelProperty>(set, getName());
    if (!property)
        property = addNewProperty<ModelProperty>(set, getName());
    if (!property) {
        reportUncreatedProperty();
        return false;
    }
    auto const text = storedForm(value.getStringValue());
    if (property->EnumerationValues.get())
        storeFirst(*property, text);
    else
        property->EnumerationValues = std::vector<FcValue>{label(text)};
    return true;
}

std::string FcPropertyEnumeratedValue::localizedValue(std::string const& value) const
{
    return localizedText(getContexts(), getPropertySetName() + "." + getName() + "." + value,
                         [&value] { return value; });
}

std::string FcPropertyEnumeratedValue::storedForm(std::string const& text) const
{
    auto const localized = getLocalizedEnumeratedValues();
    auto const found = std::find(localized.begin(), localized.end(), text);
    if (found == localized.end())
        return text;
    return getEnumeratedValues()[static_cast<std::size_t>(found - localized.begin())];
}

std::optional<std::string> FcPropertyEnumeratedValue::textOf(FcObjectDefinition& object) const
{
    auto const property = findProperty<ModelProperty>(object, getPropertySetName(), getName());
    if (!property || !property->EnumerationValues.get() || property->EnumerationValues.get()->empty())
        return std::nullopt;
    auto const& values = *property->EnumerationValues.get();
    std::string text;
    for (auto const& value : values) {
        if (&value != &values.front())
            text += ", ";
        if (auto const own = value.getAsString(false))
            text += localizedValue(*own);
    }
    return values.size() > 1 ? "(" + text + ")" : text;
}

} // namespace qev::fc::ui
