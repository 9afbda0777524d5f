#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Material/FcMaterialLayerSetUsage.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayerSetUsage;

bool GetProperties::visit(FcMaterialLayerSetUsage const&) { return true; }

bool SetValue::visit(FcMaterialLayerSetUsage&) { return true; }

} // namespace qev::fc::ui::propertyinterface
