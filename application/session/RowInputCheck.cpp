#include "RowInputCheck.h"

#include "Core/Localization/Localize.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"
#include "UI/FoundationClasses/Property/ValueCheck.h"
#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

namespace qev::application {

namespace {

using fc::ui::PropertyInterface;
using fc::ui::PropertyOrQuantityValue;

bool isNumber(PropertyInterface const& property)
{
    if (auto const* const single = dynamic_cast<fc::ui::FcPropertySingleValue const*>(&property))
        return single->getFcValue().valueAsDoubleGet().has_value();
    return dynamic_cast<fc::ui::FcQuantityBase const*>(&property) != nullptr;
}

std::optional<std::string> findObjection(PropertyInterface const& property,
                                         ui::PropertyGridInput const& input)
{
    auto const value = input.number ? PropertyOrQuantityValue::fromNumber(*input.number)
                                    : PropertyOrQuantityValue::fromText(input.text);
    if (input.checkState || fc::ui::wouldTake(property, value))
        return std::nullopt;
    return localize(isNumber(property) ? "Input_NotANumber" : "Input_NotAllowed", "Ui", {input.text});
}

} // namespace

RowInputCheck::~RowInputCheck() = default;

void RowInputCheck::onPropertyCreated(std::string const& /*setName*/, std::string const& /*propertyName*/,
                                      ui::PropertyGridProperty& property)
{
    auto* const row = dynamic_cast<ui::PropertyGridRow*>(property.getActiveInterface());
    // Attributes have no property to ask. The row goes before the property does.
    if (auto const* const shown = static_cast<PropertyInterface const*>(property.getUserData()); row && shown)
        row->setInputCheck(
            [shown](ui::PropertyGridInput const& input) { return findObjection(*shown, input); });
}

} // namespace qev::application
