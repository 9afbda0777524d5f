#include "FoundationClasses/Core/Kernel/FcObject.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Data.h"

namespace qev::fc::core::kernel {

std::shared_ptr<FcTypeObject const> FcObject::getTypeObject() const
{
    Data const* const data = getData();
    if (!data)
        return nullptr;
    static unsigned int const related =
        slotFromName(FcRelDefinesByType::staticEntityClass(), "RelatedObjects");
    static unsigned int const relating =
        slotFromName(FcRelDefinesByType::staticEntityClass(), "RelatingType");
    // A type may have thousands of objects: none of the others is of interest, so the relation does not
    // become an object.
    std::shared_ptr<FcTypeObject const> type;
    for (EntityIndex const relation :
         data->relating(getIndex(), FcRelDefinesByType::idFirst, FcRelDefinesByType::idLast, related)) {
        data->visitReferences(relation, relating, [&](EntityIndex found) {
            if (!type)
                type = entityCast<FcTypeObject>(data->entity(found));
        });
        if (type)
            break;
    }
    return type;
}

std::shared_ptr<FcObjectDefinition const> FcObject::typeOfThis() const { return getTypeObject(); }

} // namespace qev::fc::core::kernel
