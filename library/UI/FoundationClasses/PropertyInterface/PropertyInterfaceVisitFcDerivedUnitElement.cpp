#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Measure/FcDerivedUnitElement.h"

namespace qev::fc::ui::propertyinterface {

using resource::measure::FcDerivedUnitElement;

bool GetProperties::visit(FcDerivedUnitElement const&) { return true; }

bool GetPropertyName::visit(FcDerivedUnitElement const&) { return true; }

bool GetPropertyDescription::visit(FcDerivedUnitElement const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
