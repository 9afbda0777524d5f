#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcTypeObject;

bool GetProperties::visit(FcTypeObject const&) { return true; }

bool GetPropertyName::visit(FcTypeObject const&) { return true; }

bool GetPropertyDescription::visit(FcTypeObject const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
