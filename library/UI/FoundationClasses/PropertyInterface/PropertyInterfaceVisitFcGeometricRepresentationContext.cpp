#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationContext.h"

namespace qev::fc::ui::propertyinterface {

using resource::representation::FcGeometricRepresentationContext;

bool GetProperties::visit(FcGeometricRepresentationContext const&) { return true; }

bool GetValue::visit(FcGeometricRepresentationContext const&) { return true; }

bool SetValue::visit(FcGeometricRepresentationContext&) { return true; }

bool GetPropertyName::visit(FcGeometricRepresentationContext const&) { return true; }

bool HasQuantityPresentation::visit(FcGeometricRepresentationContext const&) { return true; }

bool CreateQuantityPresentation::visit(FcGeometricRepresentationContext const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
