#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayer.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/MaterialRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayerSet;

namespace {

constexpr char layersId[] = "MaterialLayers";

} // namespace

bool GetProperties::visit(FcMaterialLayerSet const& set)
{
    set.FcMaterialDefinition::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makeList(layersId, set, set.MaterialLayers->get()));
    return false;
}

bool GetValue::visit(FcMaterialLayerSet const& set)
{
    if (id.text() == layersId)
        value = nameAndDescription(set.LayerSetName, set.Description);
    return true;
}

bool SetValue::visit(FcMaterialLayerSet&)
{
    reportSetValueNotImplemented("FcMaterialLayerSet");
    return true;
}

bool GetPropertyName::visit(FcMaterialLayerSet const&)
{
    if (id.text() != layersId)
        return true;
    name = localizeWithFallback("IfcMaterialLayerSet.MaterialLayers", "MaterialLayers");
    return false;
}

bool GetPropertyDescription::visit(FcMaterialLayerSet const&)
{
    if (id.text() != layersId)
        return true;
    description = localizeWithFallback("IfcMaterialLayerSet.MaterialLayers_Description", "Material layers");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
