#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/EnumeratedValueGridControlPropertyFactory.h"

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyEnumeratedValue.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

std::unique_ptr<PropertyGridProperty>
EnumeratedValueGridControlPropertyFactory::createProperty(CreatePropertyParams const& params) const
{
    auto const* const property = dynamic_cast<FcPropertyEnumeratedValue*>(params.property);
    if (!property)
        return nullptr;
    auto row = makeStringRow(params);
    if (!row)
        return nullptr;
    row->addOption("", true);
    for (auto const& value : property->getLocalizedEnumeratedValues())
        row->addOption(value, true);
    row->setOptionsOnly(true);
    return row;
}

} // namespace qev::fc::ui
