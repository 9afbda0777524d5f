#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"

namespace qev::fc::ui::propertyinterface {

using resource::geometry::FcCartesianPoint;

bool GetProperties::visit(FcCartesianPoint const&) { return true; }

bool GetValue::visit(FcCartesianPoint const&) { return true; }

bool SetValue::visit(FcCartesianPoint&) { return true; }

bool GetPropertyName::visit(FcCartesianPoint const&) { return true; }

bool GetPropertyDescription::visit(FcCartesianPoint const&) { return true; }

bool HasQuantityPresentation::visit(FcCartesianPoint const&) { return true; }

bool CreateQuantityPresentation::visit(FcCartesianPoint const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
