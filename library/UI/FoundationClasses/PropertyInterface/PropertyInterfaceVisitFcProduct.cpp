#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Core/Kernel/FcProduct.h"

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcProduct;

bool GetProperties::visit(FcProduct const&) { return true; }

bool GetValue::visit(FcProduct const&) { return true; }

bool GetPropertyName::visit(FcProduct const&) { return true; }

bool GetPropertyDescription::visit(FcProduct const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
