#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Core/Kernel/FcObject.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcObject;

bool GetProperties::visit(FcObject const&) { return true; }

bool GetValue::visit(FcObject const&) { return true; }

bool GetPropertyName::visit(FcObject const&) { return true; }

bool GetPropertyDescription::visit(FcObject const&) { return true; }

bool GetReference::visit(FcObject const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
