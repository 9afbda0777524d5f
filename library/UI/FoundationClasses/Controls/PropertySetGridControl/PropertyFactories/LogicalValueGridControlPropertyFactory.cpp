#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/LogicalValueGridControlPropertyFactory.h"

#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

std::unique_ptr<PropertyGridProperty>
LogicalValueGridControlPropertyFactory::createProperty(CreatePropertyParams const& params) const
{
    auto const* const property = dynamic_cast<FcPropertyLogicalType*>(params.property);
    if (!property)
        return nullptr;
    auto valueParams = params;
    valueParams.property = &property->getWrappedProperty();
    auto row = SingleValueGridControlPropertyFactory::createProperty(valueParams);
    if (!row)
        return nullptr;
    for (auto const* const option : {"", "true", "false", "unknown"})
        row->addOption(option, true);
    row->allowEdit(false);
    return row;
}

} // namespace qev::fc::ui
