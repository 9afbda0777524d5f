#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include "FoundationClasses/Core/ProductExtension/FcSite.h"

namespace qev::fc::ui::propertyinterface {

using core::productextension::FcSite;

bool GetProperties::visit(FcSite const&) { return true; }

bool GetValue::visit(FcSite const&) { return true; }

bool SetValue::visit(FcSite&) { return true; }

bool GetReference::visit(FcSite const&) { return true; }

bool HasQuantityPresentation::visit(FcSite const&) { return true; }

bool CreateQuantityPresentation::visit(FcSite const&) { return true; }

} // namespace qev::fc::ui::propertyinterface
