#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Measure/FcDerivedUnit.h"

namespace qev::fc::ui::propertyinterface {

using resource::measure::FcDerivedUnit;

bool GetProperties::visit(FcDerivedUnit const&) { return true; }

bool GetPropertyName::visit(FcDerivedUnit const&) { return true; }

bool GetPropertyDescription::visit(FcDerivedUnit const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
