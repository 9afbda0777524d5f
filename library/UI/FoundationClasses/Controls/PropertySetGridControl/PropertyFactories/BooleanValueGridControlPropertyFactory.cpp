#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/BooleanValueGridControlPropertyFactory.h"

#include "UI/FoundationClasses/Controls/PropertyEdit.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertySetGridControlInterface.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridCheckBoxProperty;
using qev::ui::PropertyGridProperty;

namespace {

void onCheckBoxClicked(PropertyGridCheckBoxProperty const& row, FcPropertyBooleanType& property, Data& data,
                       PropertySetGridControlInterface& control)
{
    bool const checked = row.getCheckState() == qev::ui::CheckState::Checked;
    // The names are taken before the edit: whoever hears of it may have the sets built anew.
    auto const setName = property.getPropertySetName();
    auto const name = property.getBooleanName();
    writeCheckBoxEdit(property, data, PropertyOrQuantityValue::fromText(checked ? "1" : "0"));
    control.onCheckBoxPropertyClicked(setName, name, checked);
}

} // namespace

std::unique_ptr<PropertyGridProperty>
BooleanValueGridControlPropertyFactory::createProperty(CreatePropertyParams const& params) const
{
    // A value with a toggle is a kind of boolean, too. Where it has no box with a value, it has none without.
    if (dynamic_cast<FcPropertySingleValueWithBooleanToggle*>(params.property))
        return nullptr;
    return createCheckBoxRow(params);
}

std::unique_ptr<PropertyGridProperty>
BooleanValueGridControlPropertyFactory::createCheckBoxRow(CreatePropertyParams const& params) const
{
    auto* const property = dynamic_cast<FcPropertyBooleanType*>(params.property);
    if (!property)
        return nullptr;
    auto const value = property->getBooleanValue();
    if (!params.showUnused && value.empty())
        return nullptr;
    auto row = createCheckBoxProperty(*property, value == "1", params.showUnused);
    if (!row)
        return nullptr;
    setRowProperty(*row, *property);
    auto& control = params.gridControl;
    auto& data = *params.data;
    row->getOnCheckBoxClickedHandlers(control.getPropertyGridControl())
        .iHandlerAdd([property, &data, &control](auto& /*event*/, PropertyGridCheckBoxProperty& clicked) {
            onCheckBoxClicked(clicked, *property, data, control);
        });
    return row;
}

std::unique_ptr<PropertyGridCheckBoxProperty>
BooleanValueGridControlPropertyFactory::createCheckBoxProperty(FcPropertyBooleanType const& property,
                                                               bool checked, bool /*showUnused*/) const
{
    return std::make_unique<PropertyGridCheckBoxProperty>(property.getLocalizedName(), checkStateOf(checked),
                                                          property.getLocalizedDescription());
}

} // namespace qev::fc::ui
