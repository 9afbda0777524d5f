#include "UI/FoundationClasses/PropertyInterface/GetReference.h"

#include "FoundationClasses/Resource/ExternalReference/FcExternalReference.h"

namespace qev::fc::ui::propertyinterface {

using resource::externalreference::FcExternalReference;

bool GetReference::visit(FcExternalReference const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
