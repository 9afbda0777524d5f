#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Representation/FcGeometricRepresentationSubContext.h"

namespace qev::fc::ui::propertyinterface {

using resource::representation::FcGeometricRepresentationSubContext;

bool GetValue::visit(FcGeometricRepresentationSubContext const&) { return true; }

bool SetValue::visit(FcGeometricRepresentationSubContext&) { return true; }

bool CreateQuantityPresentation::visit(FcGeometricRepresentationSubContext const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
