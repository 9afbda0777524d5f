#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"

#include "Core/Assert/Assert.h"
#include "Core/Exception.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"

#include <string_view>

namespace qev::fc::ui {

using resource::measure::FcSimpleValue;
using resource::measure::FcValue;

namespace {

void reportText(std::string_view text)
{
    assert::report(text, "qev::fc::ui::FcPropertyBooleanType::getFcValueAsString",
                   "UI/FoundationClasses/Property/Types/FcPropertyBooleanType");
}

bool holdsBoolean(FcSimpleValue const& value) { return value.type() == FcSimpleValue::Types::Boolean; }

} // namespace

FcPropertyBooleanType::FcPropertyBooleanType(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                                             std::vector<std::string> const& contexts)
    : FcPropertySingleValue(definition, set, contexts)
{
}

FcPropertyBooleanType::~FcPropertyBooleanType() = default;

std::string FcPropertyBooleanType::getBooleanValue() const { return getValue(); }

void FcPropertyBooleanType::updateBooleanValue(Data& data, PropertyOrQuantityValue const& value)
{
    updateValue(data, value);
}

std::string FcPropertyBooleanType::getBooleanName() const { return getName(); }

bool FcPropertyBooleanType::setNewValue(PropertyOrQuantityValue const& value,
                                        core::kernel::FcPropertySet& set,
                                        core::kernel::FcObjectDefinition& /*object*/)
{
    auto const property = getSingleValueProperty(set);
    if (!property)
        return false;
    bool const truth = std::stoi(value.getStringValue()) != 0;
    FcValue edited = property->NominalValue.get();
    if (!holdsBoolean(edited.simpleValue()))
        throw exception("Not of correct type");
    edited.simpleValue().set(truth);
    if (property->NominalValue.get() != edited)
        property->NominalValue = std::move(edited);
    return true;
}

std::optional<std::string> FcPropertyBooleanType::getFcValueAsString(FcValue const& value) const
{
    if (value.discriminator() != FcValue::Simple) {
        reportText("Must be a simple value to hold a boolean.");
        return std::nullopt;
    }
    if (!holdsBoolean(value.simpleValue())) {
        reportText("FcSimpleValue doesn't hold a boolean.");
        return std::nullopt;
    }
    return value.simpleValue().get<bool>() ? "1" : "0";
}

} // namespace qev::fc::ui
