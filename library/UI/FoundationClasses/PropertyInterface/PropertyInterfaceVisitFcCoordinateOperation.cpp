#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"

#include "FoundationClasses/Resource/Representation/FcCoordinateOperation.h"

namespace qev::fc::ui::propertyinterface {

using resource::representation::FcCoordinateOperation;

bool GetProperties::visit(FcCoordinateOperation const&) { return true; }

bool GetPropertyName::visit(FcCoordinateOperation const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
