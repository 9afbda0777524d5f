#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"

namespace qev::fc::ui::propertyinterface {

using resource::geometricconstraint::FcLocalPlacement;

bool GetProperties::visit(FcLocalPlacement const&) { return true; }

bool GetValue::visit(FcLocalPlacement const&) { return true; }

bool SetValue::visit(FcLocalPlacement&) { return true; }

bool GetPropertyName::visit(FcLocalPlacement const&) { return true; }

bool GetPropertyDescription::visit(FcLocalPlacement const&) { return true; }

bool HasQuantityPresentation::visit(FcLocalPlacement const&) { return true; }

bool CreateQuantityPresentation::visit(FcLocalPlacement const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
