#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/IsValueAllowed.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertyEnumeratedValue;

bool GetProperties::visit(FcPropertyEnumeratedValue const&) { return true; }

bool GetValue::visit(FcPropertyEnumeratedValue const&) { return true; }

bool SetValue::visit(FcPropertyEnumeratedValue&) { return true; }

bool GetPropertyName::visit(FcPropertyEnumeratedValue const&) { return true; }

bool GetPropertyDescription::visit(FcPropertyEnumeratedValue const&) { return true; }

bool HasEnumeratedValues::visit(FcPropertyEnumeratedValue const&) { return true; }

bool GetEnumeratedValues::visit(FcPropertyEnumeratedValue const&) { return true; }

bool IsValueAllowed::visit(FcPropertyEnumeratedValue const&) { return true; }

bool HasQuantityPresentation::visit(FcPropertyEnumeratedValue const&) { return false; }

bool CreateQuantityPresentation::visit(FcPropertyEnumeratedValue const&) { return false; }

} // namespace qev::fc::ui::propertyinterface
