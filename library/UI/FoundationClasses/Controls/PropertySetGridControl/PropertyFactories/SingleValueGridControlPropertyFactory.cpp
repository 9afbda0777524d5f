#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueGridControlPropertyFactory.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

std::unique_ptr<PropertyGridProperty>
SingleValueGridControlPropertyFactory::createProperty(CreatePropertyParams const& params) const
{
    auto* const property = dynamic_cast<FcPropertySingleValue*>(params.property);
    if (!property)
        return nullptr;
    auto const& value = property->getFcValue();
    if (!params.showUnused && value.isEmpty())
        return nullptr;
    auto quantity = property->quantityPresentation();
    auto row = quantity ? makeNumberRow(params, value.valueAsDoubleGet().value_or(0.0), std::move(quantity))
                        : makeTextRow(params, property->getValue());
    setRowProperty(*row, *property);
    return row;
}

} // namespace qev::fc::ui
