#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/QuantityFactory.h"

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Quantity/FcQuantityBase.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

std::unique_ptr<PropertyGridProperty>
QuantityFactory::createProperty(CreatePropertyParams const& params) const
{
    return dynamic_cast<FcQuantityBase*>(params.property) ? makeStringRow(params) : nullptr;
}

} // namespace qev::fc::ui
