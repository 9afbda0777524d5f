#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Actor/FcTelecomAddress.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcTelecomAddress;

bool GetValue::visit(FcTelecomAddress const&) { return true; }

bool SetValue::visit(FcTelecomAddress&) { return true; }

bool GetPropertyName::visit(FcTelecomAddress const&) { return true; }

bool GetPropertyDescription::visit(FcTelecomAddress const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
