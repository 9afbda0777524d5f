#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"

#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"

#include <set>

namespace qev::fc::resource::externalreference {

std::shared_ptr<FcClassification> FcClassificationReference::getReferencedClassification() const
{
    std::set<FcBase const*> visited{this};
    auto source = ReferencedSource->entity();
    while (auto const reference = entityCast<FcClassificationReference>(source)) {
        bool const isNew = visited.insert(reference.get()).second;
        source = isNew ? reference->ReferencedSource->entity() : nullptr;
    }
    return entityCast<FcClassification>(source);
}

std::string FcClassificationReference::getClassificationName() const
{
    auto const classification = getReferencedClassification();
    return classification ? classification->Name.get() : std::string();
}

} // namespace qev::fc::resource::externalreference
