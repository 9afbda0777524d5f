#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"

#include "FoundationClasses/Core/ProductExtension/FcBuilding.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcBuilding;

bool GetProperties::visit(FcBuilding const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
