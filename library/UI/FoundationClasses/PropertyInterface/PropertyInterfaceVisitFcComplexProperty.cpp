#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcComplexProperty.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcComplexProperty;

bool GetProperties::visit(FcComplexProperty const&) { return true; }

bool SetValue::visit(FcComplexProperty&) { return true; }

bool GetPropertyName::visit(FcComplexProperty const&) { return true; }

bool GetPropertyDescription::visit(FcComplexProperty const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
