#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPostalAddress;

namespace {

constexpr char firstLine[] = "AddressFirstLine";
constexpr char secondLine[] = "AddressSecondLine";

/// The position of the line among the address lines; nothing for every other id.
std::optional<std::size_t> linePosition(object::PropertyId const& id)
{
    if (id.text() == firstLine)
        return 0;
    return id.text() == secondLine ? std::optional<std::size_t>(1) : std::nullopt;
}

void setLine(std::vector<std::string>& lines, std::size_t position, std::string text)
{
    if (lines.size() <= position)
        lines.resize(position + 1);
    lines[position] = std::move(text);
}

/// Lines that follow keep their places.
void clearLine(std::vector<std::string>& lines, std::size_t position)
{
    if (position + 1 == lines.size())
        lines.pop_back();
    else if (position < lines.size())
        lines[position].clear();
}

} // namespace

bool GetProperties::visit(FcPostalAddress const& address)
{
    for (auto const* const id :
         {firstLine, secondLine, "Town", "PostalBox", "Region", "PostalCode", "Country"})
        properties.push_back(makeRow(id, address));
    return false;
}

bool GetValue::visit(FcPostalAddress const& address)
{
    auto const position = linePosition(id);
    if (!position)
        return true;
    value = address.getAddressLine(*position);
    return false;
}

bool SetValue::visit(FcPostalAddress& address)
{
    auto const position = linePosition(id);
    if (!position)
        return true;
    auto lines = address.AddressLines.get().value_or(std::vector<std::string>());
    if (auto text = value->get<std::optional<std::string>>())
        setLine(lines, *position, std::move(*text));
    else
        clearLine(lines, *position);
    address.AddressLines = std::move(lines);
    return false;
}

bool GetPropertyName::visit(FcPostalAddress const&)
{
    auto const position = linePosition(id);
    if (!position)
        return true;
    name = fc::localize("IfcPostalAddress", *position == 0 ? "AddressLine1" : "AddressLine2");
    return false;
}

bool GetPropertyDescription::visit(FcPostalAddress const&)
{
    if (!linePosition(id))
        return true;
    description = fc::localize("IfcPostalAddress", "AddressLines_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
