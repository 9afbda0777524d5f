#include "UI/FoundationClasses/Property/Types/FcPropertyListValue.h"

#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "UI/FoundationClasses/Property/FindProperty.h"
#include "UI/FoundationClasses/Property/ObjectDefinitions.h"

#include <optional>
#include <string_view>

namespace qev::fc::ui {

using core::kernel::FcObjectDefinition;
using resource::measure::FcValue;
using ModelProperty = resource::property::FcPropertyListValue;

namespace {

constexpr std::string_view separator = "; ";

std::optional<std::string> textOf(ModelProperty const& property)
{
    if (!property.ListValues.get())
        return std::nullopt;
    std::string text;
    for (auto const& value : *property.ListValues.get()) {
        if (auto const own = value.getAsString(false))
            text.append(*own).append(separator);
    }
    if (!text.empty())
        text.resize(text.size() - separator.size());
    return text;
}

} // namespace

FcPropertyListValue::FcPropertyListValue(ifc::def::pset::PropertyDef& definition, PropertySet& set,
                                         std::vector<std::string> const& contexts)
    : FcPropertyBase(definition, set, contexts)
{
}

FcPropertyListValue::~FcPropertyListValue() = default;

bool FcPropertyListValue::isAllowedToEdit() const { return false; }

bool FcPropertyListValue::isValidValue() const { return true; }

std::string FcPropertyListValue::getValue() const
{
    auto const setName = getPropertySetName();
    auto const name = getName();
    return commonText(getObjects(), "qev::fc::ui::FcPropertyListValue::getValue",
                      "UI/FoundationClasses/Property/Types/FcPropertyListValue",
                      [&](FcObjectDefinition& object) -> std::optional<std::string> {
                          auto const property = findProperty<ModelProperty>(object, setName, name);
                          if (!property)
                              return std::nullopt;
                          return textOf(*property);
                      });
}

} // namespace qev::fc::ui
