#include "UI/FoundationClasses/PropertyInterface/GetListIndexPrefix.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"

#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcClassificationReference;

bool GetProperties::visit(FcClassificationReference const&) { return true; }

bool GetValue::visit(FcClassificationReference const&) { return true; }

bool GetPropertyName::visit(FcClassificationReference const&) { return true; }

bool GetListIndexPrefix::visit(FcClassificationReference const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
