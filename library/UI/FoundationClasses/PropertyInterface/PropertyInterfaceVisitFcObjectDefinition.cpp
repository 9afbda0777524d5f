#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcObjectDefinition;

bool GetProperties::visit(FcObjectDefinition const&) { return true; }

bool GetValue::visit(FcObjectDefinition const&) { return true; }

bool GetPropertyName::visit(FcObjectDefinition const&) { return true; }

bool GetPropertyDescription::visit(FcObjectDefinition const&) { return true; }

bool GetReference::visit(FcObjectDefinition const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
