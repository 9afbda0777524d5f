#include "UI/FoundationClasses/Controls/ListControl/ListControlEdit.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/ValueCheck.h"

#include <exception>
#include <string>
#include <typeinfo>

namespace qev::fc::ui {

namespace {

using qev::ui::ListControl;
using resource::measure::FcSimpleValue;
using resource::measure::FcValue;

std::optional<PropertyOrQuantityValue> chosenValue(ListControl::LabelEditEndParams const& params,
                                                   FcPropertyEnumeratedValue const& property)
{
    auto const index = params.getSelectedDropListIndex();
    if (index == ListControl::noSelection)
        return PropertyOrQuantityValue::fromText({});
    auto const values = property.getEnumeratedValues();
    if (index >= values.size())
        return std::nullopt;
    return PropertyOrQuantityValue::fromText(values[index]);
}

PropertyOrQuantityValue typedValue(std::string const& text, FcPropertySingleValue const& property)
{
    auto const presentation = property.quantityPresentation();
    if (!presentation || text.empty())
        return PropertyOrQuantityValue::fromText(text);
    auto const number = presentation->settings().dInternal(text, presentation->unit());
    return PropertyOrQuantityValue::fromNumber(number == 0.0 ? 0.0 : number);
}

bool canHoldTruth(FcValue const& value)
{
    return value.isEmpty() || (value.discriminator() == FcValue::Simple &&
                               value.simpleValue().type() == FcSimpleValue::Types::Boolean);
}

} // namespace

std::optional<PropertyOrQuantityValue> editedValue(ListControl::LabelEditEndParams const& params,
                                                   PropertyInterface const& property)
{
    if (auto const* const enumerated = dynamic_cast<FcPropertyEnumeratedValue const*>(&property))
        return chosenValue(params, *enumerated);
    if (auto const* const single = dynamic_cast<FcPropertySingleValue const*>(&property))
        return typedValue(params.getEditBoxText(), *single);
    return std::nullopt;
}

bool wouldTakeEdit(ListControl::LabelEditEndParams const& params, PropertyInterface const& property)
{
    if (typeid(property) == typeid(FcPropertyBooleanType))
        return canHoldTruth(dynamic_cast<FcPropertyBooleanType const&>(property).getFcValue());
    // What lets exceptions pass refuses the value, as the edit itself does.
    try {
        auto const value = editedValue(params, property);
        return value && wouldTake(property, *value);
    } catch (std::exception const&) {
        return false;
    }
}

} // namespace qev::fc::ui
