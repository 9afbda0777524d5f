#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertyReferenceValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertyReferenceValue;

bool GetValue::visit(FcPropertyReferenceValue const&) { return true; }

bool SetValue::visit(FcPropertyReferenceValue&) { return true; }

} // namespace qev::fc::ui::propertyinterface
