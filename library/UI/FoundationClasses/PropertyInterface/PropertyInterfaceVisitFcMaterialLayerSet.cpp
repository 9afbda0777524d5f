#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Material/FcMaterialLayerSet.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayerSet;

bool GetProperties::visit(FcMaterialLayerSet const&) { return true; }

bool GetValue::visit(FcMaterialLayerSet const&) { return true; }

bool SetValue::visit(FcMaterialLayerSet&) { return true; }

bool GetPropertyName::visit(FcMaterialLayerSet const&) { return true; }

bool GetPropertyDescription::visit(FcMaterialLayerSet const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
