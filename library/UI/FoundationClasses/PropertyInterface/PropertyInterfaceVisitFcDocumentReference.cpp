#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcDocumentReference;

bool GetProperties::visit(FcDocumentReference const&) { return true; }

bool GetPropertyName::visit(FcDocumentReference const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
