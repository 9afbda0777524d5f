#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Shared/SharedBldgServiceElements/FcDistributionPort.h"

namespace qev::fc::ui::propertyinterface {

using shared::sharedbldgserviceelements::FcDistributionPort;

bool GetProperties::visit(FcDistributionPort const&) { return true; }

bool GetPropertyName::visit(FcDistributionPort const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
