#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPerson;

namespace {

/// A person's name is the given name.
void useGivenName(object::PropertyId& id)
{
    if (id.text() == "Name")
        id = object::PropertyId("GivenName");
}

} // namespace

bool GetProperties::visit(FcPerson const&) { return false; }

bool GetValue::visit(FcPerson const&)
{
    useGivenName(id);
    return true;
}

bool SetValue::visit(FcPerson&)
{
    useGivenName(id);
    return true;
}

bool GetPropertyName::visit(FcPerson const&)
{
    if (id.text() != "Name")
        return true;
    // Names are labelled alike everywhere.
    name = fc::localize("IfcSite", "Name");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
