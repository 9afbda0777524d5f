#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertyBoundedValue;

bool GetProperties::visit(FcPropertyBoundedValue const&) { return true; }

bool GetValue::visit(FcPropertyBoundedValue const&) { return true; }

bool SetValue::visit(FcPropertyBoundedValue&) { return true; }

bool GetPropertyName::visit(FcPropertyBoundedValue const&) { return true; }

bool GetPropertyDescription::visit(FcPropertyBoundedValue const&) { return true; }

bool HasQuantityPresentation::visit(FcPropertyBoundedValue const&) { return true; }

bool CreateQuantityPresentation::visit(FcPropertyBoundedValue const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
