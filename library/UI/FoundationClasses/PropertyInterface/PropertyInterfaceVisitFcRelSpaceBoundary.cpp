#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Core/ProductExtension/FcRelSpaceBoundary.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcRelSpaceBoundary;

bool GetProperties::visit(FcRelSpaceBoundary const&) { return true; }

bool GetValue::visit(FcRelSpaceBoundary const&) { return true; }

bool SetValue::visit(FcRelSpaceBoundary&) { return true; }

bool GetPropertyName::visit(FcRelSpaceBoundary const&) { return true; }

bool GetReference::visit(FcRelSpaceBoundary const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
