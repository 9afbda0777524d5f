#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Material/FcMaterial.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterial;

bool GetProperties::visit(FcMaterial const&) { return true; }

bool GetPropertyName::visit(FcMaterial const&) { return true; }

bool GetPropertyDescription::visit(FcMaterial const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
