#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcExtendedProperties;

bool GetProperties::visit(FcExtendedProperties const&) { return true; }

bool SetValue::visit(FcExtendedProperties&) { return true; }

bool GetPropertyName::visit(FcExtendedProperties const&) { return true; }

bool GetPropertyDescription::visit(FcExtendedProperties const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
