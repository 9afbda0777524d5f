#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Actor/FcPerson.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPerson;

bool GetProperties::visit(FcPerson const&) { return false; }

bool GetValue::visit(FcPerson const&) { return true; }

bool SetValue::visit(FcPerson&) { return true; }

bool GetPropertyName::visit(FcPerson const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
