#include "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue.h"

#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/NumberTexts.h"
#include "UI/FoundationClasses/Property/FindProperty.h"
#include "UI/FoundationClasses/Property/ObjectDefinitions.h"

#include <optional>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using resource::measure::FcValue;
using ModelProperty = resource::property::FcPropertyBoundedValue;

namespace {

std::optional<std::string> textOf(FcValue const& value)
{
    if (value.isEmpty())
        return std::nullopt;
    if (auto const number = value.valueAsDoubleGet())
        return sixDecimalText(*number);
    return value.getAsString(false);
}

std::string textOf(ModelProperty const& property)
{
    auto const& lower = property.LowerBoundValue.get();
    auto const& upper = property.UpperBoundValue.get();
    auto const setPoint = textOf(property.SetPointValue.get());
    std::string text;
    if (!lower.isEmpty() || !upper.isEmpty()) {
        text = "(" + textOf(lower).value_or("") + ", " + textOf(upper).value_or("") + ")";
        if (setPoint)
            text += " ";
    }
    return text + setPoint.value_or("");
}

} // namespace

FcPropertyBoundedValue::FcPropertyBoundedValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                                               std::vector<std::string> const& contexts)
    : FcPropertyBase(definition, set, contexts)
{
}

FcPropertyBoundedValue::~FcPropertyBoundedValue() = default;

bool FcPropertyBoundedValue::isAllowedToEdit() const { return false; }

bool FcPropertyBoundedValue::isValidValue() const { return false; }

std::string FcPropertyBoundedValue::getValue() const
{
    auto const setName = getPropertySetName();
    auto const name = getName();
    return commonText(getObjects(), "qev::fc::ui::FcPropertyBoundedValue::getValue",
                      "UI/FoundationClasses/Property/Types/FcPropertyBoundedValue",
                      [&](FcObjectDefinition& object) -> std::optional<std::string> {
                          auto const property = findProperty<ModelProperty>(object, setName, name);
                          if (!property)
                              return std::nullopt;
                          return textOf(*property);
                      });
}

} // namespace qev::fc::ui
