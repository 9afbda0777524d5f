#include "UI/FoundationClasses/PropertyInterface/GetReference.h"

#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcClassification;

bool GetReference::visit(FcClassification const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
