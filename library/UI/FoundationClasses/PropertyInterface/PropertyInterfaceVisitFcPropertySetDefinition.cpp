#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcPropertySetDefinition;

bool GetProperties::visit(FcPropertySetDefinition const&) { return true; }

bool GetPropertyName::visit(FcPropertySetDefinition const&) { return true; }

bool GetPropertyDescription::visit(FcPropertySetDefinition const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
