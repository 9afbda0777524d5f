#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcPropertySingleValue;

bool GetValue::visit(FcPropertySingleValue const&) { return true; }

bool SetValue::visit(FcPropertySingleValue&) { return true; }

bool HasEnumeratedValues::visit(FcPropertySingleValue const&) { return true; }

bool GetEnumeratedValues::visit(FcPropertySingleValue const&) { return true; }

bool HasQuantityPresentation::visit(FcPropertySingleValue const&) { return true; }

bool CreateQuantityPresentation::visit(FcPropertySingleValue const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
