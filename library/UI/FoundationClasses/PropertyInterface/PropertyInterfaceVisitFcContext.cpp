#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Core/Kernel/FcContext.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcContext;

bool GetProperties::visit(FcContext const&) { return true; }

bool GetPropertyName::visit(FcContext const&) { return true; }

bool GetPropertyDescription::visit(FcContext const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
