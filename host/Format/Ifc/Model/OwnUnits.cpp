#include "Format/Ifc/Model/OwnUnits.h"

#include <array>
#include <string_view>

namespace qev::ifc {

namespace {

struct OwnUnit
{
    std::string_view className;
    /// The attribute with the number; empty for all attributes of the class.
    std::string_view attribute;
    std::string_view unit;
};

constexpr std::array<OwnUnit, 7> ownUnits = {{
    {"IfcPropertySingleValue", "NominalValue", "Unit"},
    {"IfcPropertyBoundedValue", "", "Unit"},
    {"IfcPropertyListValue", "ListValues", "Unit"},
    {"IfcPropertyTableValue", "DefiningValues", "DefiningUnit"},
    {"IfcPropertyTableValue", "DefinedValues", "DefinedUnit"},
    {"IfcMeasureWithUnit", "ValueComponent", "UnitComponent"},
    {"IfcPhysicalSimpleQuantity", "", "Unit"},
}};

bool isA(fc::EntityClass const* entityClass, std::string_view name)
{
    for (; entityClass; entityClass = entityClass->supertype) {
        if (entityClass->name == name)
            return true;
    }
    return false;
}

} // namespace

std::optional<unsigned int> ownUnitSlot(fc::EntityClass const& entityClass, unsigned int slot)
{
    std::string_view const attribute = entityClass.attributes[slot]->name;
    for (OwnUnit const& candidate : ownUnits) {
        if (isA(&entityClass, candidate.className) &&
            (candidate.attribute.empty() || candidate.attribute == attribute))
            return slotFromName(entityClass, candidate.unit);
    }
    return std::nullopt;
}

} // namespace qev::ifc
