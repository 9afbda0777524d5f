#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include "Core/Id/Guid.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace qev::fc::core::kernel {

namespace {

using resource::externalreference::FcClassification;
using resource::externalreference::FcClassificationReference;
using resource::externalreference::FcClassificationReferenceSelect;
using resource::externalreference::FcClassificationSelect;

using classification::ClassificationInterface;

/// \p text as the value of an attribute that may be left out.
std::optional<std::string> unlessEmpty(std::string text)
{
    return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::shared_ptr<FcClassification> findOrCreateClassification(Data& data,
                                                             ClassificationInterface const& system)
{
    for (auto const& classification : data.entities<FcClassification>()) {
        if (classification->Name.get() == system.getKey())
            return classification;
    }
    auto created = std::make_shared<FcClassification>();
    created->Name = system.getKey();
    created->Source = unlessEmpty(system.getSource());
    created->Edition = unlessEmpty(system.getEdition());
    data.entityAdd(created, false);
    return created;
}

/// The reference with this code in \p classification. A code means one thing in its whole system, and files
/// of older versions cannot say which code stands below which: so it is looked for wherever it stands.
std::shared_ptr<FcClassificationReference>
findReference(Data& data, std::shared_ptr<FcClassification> const& classification, std::string const& code)
{
    for (auto const& reference : data.entities<FcClassificationReference>()) {
        if (reference->Identification.get() == code &&
            reference->getReferencedClassification() == classification)
            return reference;
    }
    return nullptr;
}

std::shared_ptr<FcClassificationReference> createReference(Data& data, ClassificationInterface const& system,
                                                           FcClassificationReferenceSelect const& source,
                                                           std::string const& code)
{
    auto created = std::make_shared<FcClassificationReference>();
    created->Identification = code;
    created->Name = unlessEmpty(system.getTitle(code));
    created->ReferencedSource = source;
    data.entityAdd(created, false);
    return created;
}

std::shared_ptr<FcRelAssociatesClassification>
findOrCreateRelation(Data& data, FcObjectDefinition const& object,
                     std::shared_ptr<FcClassificationReference> const& reference)
{
    for (auto const& candidate : reference->ClassificationRefForObjects()) {
        if (auto relation = candidate.lock())
            return relation;
    }
    auto created = std::make_shared<FcRelAssociatesClassification>();
    created->setGuid(Guid::generate());
    created->OwnerHistory = object.OwnerHistory.get();
    created->RelatingClassification = FcClassificationSelect(reference);
    data.entityAdd(created, false);
    return created;
}

void relate(FcRelAssociatesClassification& relation, std::shared_ptr<FcObjectDefinition> const& object)
{
    FcDefinitionSelect const related(object);
    auto const& present = relation.RelatedObjects.get();
    if (std::find(present.begin(), present.end(), related) == present.end())
        relation.RelatedObjects.edit([&related](auto& objects) { objects.push_back(related); });
}

} // namespace

std::shared_ptr<FcClassification>
FcObjectDefinition::classify(std::shared_ptr<classification::ClassificationInterface> const& system,
                             std::vector<std::string> const& codes)
{
    Data* const data = getData();
    if (!data || !system || codes.empty())
        return nullptr;
    ChangeLog::Step const step(data->changes(), "Classify");
    auto const classification = findOrCreateClassification(*data, *system);
    FcClassificationReferenceSelect source(classification);
    std::shared_ptr<FcClassificationReference> reference;
    for (std::string const& code : codes) {
        reference = findReference(*data, classification, code);
        if (!reference)
            reference = createReference(*data, *system, source, code);
        source = FcClassificationReferenceSelect(reference);
    }
    relate(*findOrCreateRelation(*data, *this, reference),
           std::static_pointer_cast<FcObjectDefinition>(shared_from_this()));
    return classification;
}

std::shared_ptr<FcClassificationReference const>
FcObjectDefinition::getClassification(classification::ClassificationInterface const& system) const
{
    std::string const key = system.getKey();
    for (auto const& candidate : HasAssociations()) {
        auto const relation = entityCast<FcRelAssociatesClassification>(candidate.lock());
        if (!relation)
            continue;
        auto const reference =
            entityCast<FcClassificationReference>(relation->RelatingClassification->entity());
        auto const classification = reference ? reference->getReferencedClassification() : nullptr;
        if (classification && classification->Name.get() == key)
            return reference;
    }
    return nullptr;
}

} // namespace qev::fc::core::kernel
