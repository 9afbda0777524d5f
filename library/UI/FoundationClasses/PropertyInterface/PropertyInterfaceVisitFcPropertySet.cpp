#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcPropertySet;

bool GetProperties::visit(FcPropertySet const&) { return true; }

bool GetPropertyName::visit(FcPropertySet const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
