#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"

#include "Core/Unit/QuantityPresentation.h"
#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"

#include <utility>

namespace qev::fc::ui {

using qev::ui::PropertyGridCustomButtonProperty;
using qev::ui::PropertyGridProperty;

namespace {

bool wantsCustomButton(PropertySetGridControlInterface& control)
{
    auto const formatter = control.getGridControlPropertyFormatter();
    return formatter && formatter->wantCustomButtonProperties();
}

template <class Value>
std::unique_ptr<PropertyGridProperty> makeRow(GridControlPropertyFactory::CreatePropertyParams const& params,
                                              Value const& value)
{
    auto const name = params.property->getLocalizedName();
    auto const description = params.property->getLocalizedDescription();
    if (wantsCustomButton(params.gridControl))
        return std::make_unique<PropertyGridCustomButtonProperty>(
            name, nullptr, PropertyGridCustomButtonProperty::VisibleState::Visible, value, description);
    return std::make_unique<PropertyGridProperty>(name, value, description, false);
}

} // namespace

std::unique_ptr<PropertyGridProperty>
makeTextRow(GridControlPropertyFactory::CreatePropertyParams const& params, std::string const& value)
{
    return makeRow(params, value);
}

std::unique_ptr<PropertyGridProperty>
makeNumberRow(GridControlPropertyFactory::CreatePropertyParams const& params, double value,
              std::unique_ptr<unit::QuantityPresentationBase> quantity)
{
    auto row = makeRow(params, value);
    row->setQuantityPresentation(std::move(quantity));
    return row;
}

std::unique_ptr<PropertyGridProperty>
makeStringRow(GridControlPropertyFactory::CreatePropertyParams const& params)
{
    auto const value = params.property->getValue();
    if (!params.showUnused && value.empty())
        return nullptr;
    auto row = makeTextRow(params, value);
    setRowProperty(*row, *params.property);
    return row;
}

void setRowProperty(PropertyGridProperty& row, PropertyInterface& property) { row.setUserData(&property); }

PropertyInterface* propertyOfRow(PropertyGridProperty const& row)
{
    return static_cast<PropertyInterface*>(row.getUserData());
}

} // namespace qev::fc::ui
