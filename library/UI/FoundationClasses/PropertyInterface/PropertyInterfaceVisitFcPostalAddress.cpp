#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPostalAddress;

bool GetProperties::visit(FcPostalAddress const&) { return true; }

bool GetValue::visit(FcPostalAddress const&) { return true; }

bool SetValue::visit(FcPostalAddress&) { return true; }

bool GetPropertyName::visit(FcPostalAddress const&) { return true; }

bool GetPropertyDescription::visit(FcPostalAddress const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
