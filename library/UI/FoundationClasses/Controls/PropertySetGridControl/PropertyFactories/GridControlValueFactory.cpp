#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlValueFactory.h"

#include "Core/Unit/QuantityPresentation.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Property/FcValueBase.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridProperty;

std::unique_ptr<PropertyGridProperty>
GridControlValueFactory::createProperty(CreatePropertyParams const& params) const
{
    auto const* const property = dynamic_cast<FcValueBase*>(params.property);
    if (!property)
        return nullptr;
    auto quantity = property->quantityPresentation();
    std::unique_ptr<PropertyGridProperty> row;
    if (quantity) {
        row = makeNumberRow(params, property->getAsSiUnit(*params.data).value_or(0.0), std::move(quantity));
    } else {
        auto const value = property->getValue();
        if (!params.showUnused && value.empty())
            return nullptr;
        row = makeTextRow(params, value);
    }
    if (auto const items = property->enumValues()) {
        row->addOption("", true);
        for (auto const& item : *items)
            row->addOption(item, true);
    }
    row->allowEdit(false);
    row->setUserData(nullptr);
    return row;
}

} // namespace qev::fc::ui
