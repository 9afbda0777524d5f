#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcProperty.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcProperty;

bool GetProperties::visit(FcProperty const&) { return true; }

bool GetValue::visit(FcProperty const&) { return true; }

bool SetValue::visit(FcProperty&) { return true; }

bool GetPropertyName::visit(FcProperty const&) { return true; }

bool GetPropertyDescription::visit(FcProperty const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
