#include "UI/FoundationClasses/PropertyInterface/ValueRows.h"

#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

#include <string>

namespace qev::fc::ui::propertyinterface {

using resource::measure::FcValue;

void appendValueRows(std::size_t count, FcBase const& property, Property& row)
{
    for (std::size_t i = 0; i < count; ++i)
        row.children.push_back(makeRow(std::to_string(i), property));
}

FcValue const* valueAt(Values const& values, object::PropertyId const& id)
{
    auto const position = positionFromText(id.text());
    return position && values && *position < values->size() ? &(*values)[*position] : nullptr;
}

object::PropertyValue optionalValueOf(FcValue const* value)
{
    if (!value)
        return {};
    auto const plain = value->getAsPropertyValue();
    return plain.getWrappedOptionalValue(plain);
}

} // namespace qev::fc::ui::propertyinterface
