#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterial;

namespace {

constexpr char propertiesId[] = "Properties";

} // namespace

bool GetProperties::visit(FcMaterial const& material)
{
    material.FcMaterialDefinition::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makeList(propertiesId, material, liveOnes(material.HasProperties())));
    return false;
}

bool GetPropertyName::visit(FcMaterial const&)
{
    if (id.text() != propertiesId)
        return true;
    name = localizeWithFallback("IfcMaterial.HasProperties", "HasProperties");
    return false;
}

bool GetPropertyDescription::visit(FcMaterial const&)
{
    if (id.text() != propertiesId)
        return true;
    description = localizeWithFallback("IfcMaterial.HasProperties_Description", "Properties of the material");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
