#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Core/ProductExtension/FcElement.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcElement;

bool GetProperties::visit(FcElement const&) { return true; }

bool GetValue::visit(FcElement const&) { return true; }

bool GetReference::visit(FcElement const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
