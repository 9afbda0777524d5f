#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPersonAndOrganization;

bool GetProperties::visit(FcPersonAndOrganization const&) { return true; }

bool GetPropertyName::visit(FcPersonAndOrganization const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
