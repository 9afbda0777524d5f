#include "UI/FoundationClasses/Controls/PropertyEdit.h"

#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"

#include <exception>

namespace qev::fc::ui {

namespace {

template <class Write>
bool runAsStep(Data& data, std::string const& name, Write const& write)
{
    try {
        ChangeLog::Step const step(data.changes(), name);
        return write();
    } catch (std::exception const&) {
        return false;
    }
}

} // namespace

bool writeEdit(PropertyInterface& property, Data& data, PropertyOrQuantityValue const& value)
{
    return runAsStep(data, property.getLocalizedName(), [&] { return property.updateValue(data, value); });
}

bool writeCheckBoxEdit(FcPropertyBooleanType& property, Data& data, PropertyOrQuantityValue const& value)
{
    return runAsStep(data, property.getLocalizedName(), [&] {
        property.updateBooleanValue(data, value);
        return true;
    });
}

} // namespace qev::fc::ui
