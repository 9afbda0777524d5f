#include "FoundationClasses/Resource/Property/SetsOfProperty.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"

namespace qev::fc::resource::property {

using core::kernel::FcPropertySet;

void visitSetsOf(FcProperty const& property, std::function<bool(FcPropertySet const&)> const& visit)
{
    static unsigned int const slot = slotFromName(FcPropertySet::staticEntityClass(), "HasProperties");
    Data const* const data = property.getData();
    if (!data)
        return;
    for (EntityIndex const index :
         data->relating(property.getIndex(), FcPropertySet::idFirst, FcPropertySet::idLast, slot)) {
        auto const set = entityCast<FcPropertySet>(data->entity(index));
        if (set && !visit(*set))
            return;
    }
}

} // namespace qev::fc::resource::property
