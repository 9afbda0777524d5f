#include "FoundationClasses/Resource/ExternalReference/FcExternalReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"

namespace qev::fc::ui::propertyinterface {

bool GetReference::visit(resource::externalreference::FcExternalReference const& entity)
{
    if (id.text() != "Location")
        return true;
    if (auto const& location = entity.Location.get())
        reference = *location;
    return false;
}

} // namespace qev::fc::ui::propertyinterface
