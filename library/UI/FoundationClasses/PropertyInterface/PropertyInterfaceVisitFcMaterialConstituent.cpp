#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialConstituent;

bool GetProperties::visit(FcMaterialConstituent const&) { return true; }

bool GetPropertyName::visit(FcMaterialConstituent const&) { return true; }

bool GetPropertyDescription::visit(FcMaterialConstituent const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
