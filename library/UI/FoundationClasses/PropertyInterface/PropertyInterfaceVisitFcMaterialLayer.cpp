#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Material/FcMaterialLayer.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayer;

bool GetProperties::visit(FcMaterialLayer const&) { return true; }

bool GetPropertyName::visit(FcMaterialLayer const&) { return true; }

bool GetPropertyDescription::visit(FcMaterialLayer const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
