#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcSpatialElement;

bool GetProperties::visit(FcSpatialElement const&) { return true; }

bool GetValue::visit(FcSpatialElement const&) { return true; }

bool GetPropertyName::visit(FcSpatialElement const&) { return true; }

bool GetPropertyDescription::visit(FcSpatialElement const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
