#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"

namespace qev::fc::ui::propertyinterface {

bool GetReference::visit(resource::externalreference::FcClassification const& classification)
{
    if (id.text() != "Specification")
        return true;
    if (auto const& specification = classification.Specification.get())
        reference = *specification;
    return false;
}

} // namespace qev::fc::ui::propertyinterface
