#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"

namespace qev::fc::ui::propertyinterface {

using resource::utility::FcOwnerHistory;

bool GetProperties::visit(FcOwnerHistory const&) { return true; }

bool GetValue::visit(FcOwnerHistory const&) { return true; }

bool SetValue::visit(FcOwnerHistory&) { return true; }

} // namespace qev::fc::ui::propertyinterface
