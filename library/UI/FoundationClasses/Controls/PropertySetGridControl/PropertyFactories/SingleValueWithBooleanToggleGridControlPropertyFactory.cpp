#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueWithBooleanToggleGridControlPropertyFactory.h"

#include "Core/Assert/Assert.h"
#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridRows.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValueWithBooleanToggle.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"

namespace qev::fc::ui {

using qev::ui::PropertyGridCheckBoxProperty;
using qev::ui::PropertyGridProperty;

namespace {

void reportFromCreate(std::string_view text)
{
    assert::report(
        text, "qev::fc::ui::SingleValueWithBooleanToggleGridControlPropertyFactory::createCheckBoxProperty",
        "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/"
        "SingleValueWithBooleanToggleGridControlPropertyFactory");
}

} // namespace

std::unique_ptr<PropertyGridProperty> SingleValueWithBooleanToggleGridControlPropertyFactory::createProperty(
    CreatePropertyParams const& params) const
{
    if (!dynamic_cast<FcPropertySingleValueWithBooleanToggle*>(params.property))
        return nullptr;
    return createCheckBoxRow(params);
}

std::unique_ptr<PropertyGridCheckBoxProperty>
SingleValueWithBooleanToggleGridControlPropertyFactory::createCheckBoxProperty(
    FcPropertyBooleanType const& property, bool checked, bool showUnused) const
{
    auto const* const toggle = dynamic_cast<FcPropertySingleValueWithBooleanToggle const*>(&property);
    if (!toggle) {
        reportFromCreate("Property is not a FcPropertySingleValueWithBooleanToggle");
        return nullptr;
    }
    if (!toggle->usesValueDefinition())
        reportFromCreate(
            "Must be set up to use value definition (not boolean property) when this function is "
            "called.");
    auto const& value = toggle->getFcValue();
    if (!showUnused && value.isEmpty())
        return nullptr;
    auto const name = toggle->getLocalizedName();
    auto const description = toggle->getLocalizedDescription();
    std::unique_ptr<PropertyGridCheckBoxProperty> row;
    if (auto quantity = toggle->quantityPresentation()) {
        row = std::make_unique<PropertyGridCheckBoxProperty>(
            name, checkStateOf(checked), value.valueAsDoubleGet().value_or(0.0), description);
        row->setQuantityPresentation(std::move(quantity));
    } else {
        row = std::make_unique<PropertyGridCheckBoxProperty>(name, checkStateOf(checked), toggle->getValue(),
                                                             description);
    }
    row->setValueDisplayMode(qev::ui::ValueDisplayMode::BesideCheckBox);
    return row;
}

} // namespace qev::fc::ui
