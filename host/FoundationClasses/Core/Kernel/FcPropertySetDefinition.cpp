#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Data.h"

namespace qev::fc::core::kernel {

bool FcPropertySetDefinition::hasProperty(std::string_view) const { return false; }

std::vector<std::shared_ptr<FcBase>> FcPropertySetDefinition::ownedEntities() const { return {}; }

void FcPropertySetDefinition::deletePset(Data& data)
{
    ChangeLog::Step const step(data.changes(), "Delete property set");
    auto const self = std::static_pointer_cast<FcPropertySetDefinition>(shared_from_this());
    for (auto const& reference : DefinesOccurrence()) {
        auto const relation = reference.lock();
        if (!relation)
            continue;
        std::vector<ReferenceBase> kept;
        for (ReferenceBase const& other : relation->RelatingPropertyDefinition->references()) {
            if (other.entity() != self)
                kept.push_back(other);
        }
        if (kept.empty()) {
            data.entityDelete(relation);
            continue;
        }
        relation->RelatingPropertyDefinition.edit([&kept](auto& definition) {
            definition.setReferences("IfcPropertySetDefinitionSet", std::move(kept));
        });
    }
    for (auto const& reference : DefinesType()) {
        if (auto const type = reference.lock())
            type->eraseHasPropertySets(self);
    }
    auto const owned = ownedEntities();
    data.entityDelete(self);
    for (auto const& entity : owned)
        data.deleteIfUnreferenced(entity);
}

} // namespace qev::fc::core::kernel
