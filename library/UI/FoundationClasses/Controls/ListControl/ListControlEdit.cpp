#include "UI/FoundationClasses/Controls/ListControl/ListControlEdit.h"

#include "Core/Unit/QuantityPresentation.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

#include <string>

namespace qev::fc::ui {

namespace {

using qev::ui::ListControl;

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

} // namespace qev::fc::ui
