#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Material/FcMaterialConstituentSet.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialConstituentSet;

bool GetProperties::visit(FcMaterialConstituentSet const&) { return true; }

bool GetValue::visit(FcMaterialConstituentSet const&) { return true; }

bool SetValue::visit(FcMaterialConstituentSet&) { return true; }

bool GetPropertyName::visit(FcMaterialConstituentSet const&) { return true; }

bool GetPropertyDescription::visit(FcMaterialConstituentSet const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
