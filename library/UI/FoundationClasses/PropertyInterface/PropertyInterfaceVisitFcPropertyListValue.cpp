#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertyListValue;

bool GetProperties::visit(FcPropertyListValue const&) { return true; }

bool GetValue::visit(FcPropertyListValue const&) { return true; }

bool SetValue::visit(FcPropertyListValue&) { return true; }

bool GetPropertyName::visit(FcPropertyListValue const&) { return true; }

bool GetPropertyDescription::visit(FcPropertyListValue const&) { return true; }

bool HasQuantityPresentation::visit(FcPropertyListValue const&) { return true; }

bool CreateQuantityPresentation::visit(FcPropertyListValue const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
