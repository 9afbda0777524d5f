#include "FoundationClasses/Core/Kernel/FcObject.h"

#include "FoundationClasses/Core/Kernel/FcRelDefinesByType.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"

namespace qev::fc::core::kernel {

std::shared_ptr<FcTypeObject const> FcObject::getTypeObject() const
{
    for (auto const& reference : IsTypedBy()) {
        auto const relation = reference.lock();
        if (auto type = relation ? relation->RelatingType->get() : nullptr)
            return type;
    }
    return nullptr;
}

std::shared_ptr<FcObjectDefinition const> FcObject::typeOfThis() const { return getTypeObject(); }

} // namespace qev::fc::core::kernel
