#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Core/ProductExtension/FcElementQuantity.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcElementQuantity;

bool GetProperties::visit(FcElementQuantity const&) { return true; }

bool GetValue::visit(FcElementQuantity const&) { return true; }

bool SetValue::visit(FcElementQuantity&) { return true; }

bool GetPropertyName::visit(FcElementQuantity const&) { return true; }

bool GetPropertyDescription::visit(FcElementQuantity const&) { return true; }

bool HasQuantityPresentation::visit(FcElementQuantity const&) { return true; }

bool CreateQuantityPresentation::visit(FcElementQuantity const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
