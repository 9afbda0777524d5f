#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"

#include "Core/Unit/QppSettings.h"
#include "Core/Unit/QuantityPresentation.h"

namespace qev::fc::resource::property {

std::string FcPropertyBoundedValue::getAsOneLineString(std::optional<std::string> const& setName) const
{
    auto const textOf = [this, &setName](measure::FcValue const& value) {
        auto const presentation = value.isEmpty() ? nullptr : createQuantityPresentationFor(value, setName);
        return presentation ? presentation->text() : value.getAsString(false).value_or("");
    };
    std::string line;
    if (!LowerBoundValue->isEmpty() || !UpperBoundValue->isEmpty())
        line = "[" + textOf(LowerBoundValue) + ", " + textOf(UpperBoundValue) + "]";
    if (SetPointValue->isEmpty())
        return line;
    return line + (line.empty() ? "" : " ") + textOf(SetPointValue);
}

} // namespace qev::fc::resource::property
