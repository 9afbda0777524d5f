#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Quantity/FcPhysicalComplexQuantity.h"

namespace qev::fc::ui::propertyinterface {

using resource::quantity::FcPhysicalComplexQuantity;

bool GetProperties::visit(FcPhysicalComplexQuantity const&) { return true; }

bool GetValue::visit(FcPhysicalComplexQuantity const&) { return true; }

bool SetValue::visit(FcPhysicalComplexQuantity&) { return false; }

bool GetPropertyName::visit(FcPhysicalComplexQuantity const&) { return true; }

bool GetPropertyDescription::visit(FcPhysicalComplexQuantity const&) { return true; }

bool HasQuantityPresentation::visit(FcPhysicalComplexQuantity const&) { return true; }

bool CreateQuantityPresentation::visit(FcPhysicalComplexQuantity const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
