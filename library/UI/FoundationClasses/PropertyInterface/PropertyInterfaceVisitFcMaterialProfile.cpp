#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Material/FcMaterialProfile.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialProfile;

bool GetProperties::visit(FcMaterialProfile const&) { return true; }

bool SetValue::visit(FcMaterialProfile&) { return true; }

bool GetPropertyName::visit(FcMaterialProfile const&) { return true; }

bool GetPropertyDescription::visit(FcMaterialProfile const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
