#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertyTableValue;

bool GetProperties::visit(FcPropertyTableValue const&) { return true; }

bool GetValue::visit(FcPropertyTableValue const&) { return true; }

bool SetValue::visit(FcPropertyTableValue&) { return false; }

bool GetPropertyName::visit(FcPropertyTableValue const&) { return true; }

bool GetPropertyDescription::visit(FcPropertyTableValue const&) { return true; }

bool HasQuantityPresentation::visit(FcPropertyTableValue const&) { return true; }

bool CreateQuantityPresentation::visit(FcPropertyTableValue const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
