#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Actor/FcTelecomAddress.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcTelecomAddress;

namespace {

using Texts = Attribute<std::optional<std::vector<std::string>>>;

/// The attribute whose first entry a row shows; null for every other id.
Texts* textsOf(FcTelecomAddress& address, object::PropertyId const& id)
{
    if (id.text() == "TelephoneNumber")
        return &address.TelephoneNumbers;
    if (id.text() == "FacsimileNumber")
        return &address.FacsimileNumbers;
    return id.text() == "MailAddress" ? &address.ElectronicMailAddresses : nullptr;
}

Texts const* textsOf(FcTelecomAddress const& address, object::PropertyId const& id)
{
    return textsOf(const_cast<FcTelecomAddress&>(address), id);
}

std::optional<std::string> firstOf(std::optional<std::vector<std::string>> const& texts)
{
    return texts && !texts->empty() ? std::optional(texts->front()) : std::nullopt;
}

} // namespace

bool GetValue::visit(FcTelecomAddress const& address)
{
    auto const* const texts = textsOf(address, id);
    if (!texts)
        return true;
    value = firstOf(texts->get());
    return false;
}

bool SetValue::visit(FcTelecomAddress& address)
{
    auto* const texts = textsOf(address, id);
    if (!texts)
        return true;
    if (auto const text = value->get<std::optional<std::string>>())
        *texts = std::vector{*text};
    else
        *texts = std::nullopt;
    return false;
}

bool GetPropertyName::visit(FcTelecomAddress const& address)
{
    if (!textsOf(address, id))
        return true;
    name =
        fc::localize("IfcTelecomAddress", id.text() == "MailAddress" ? "ElectronicMailAddress" : id.text());
    return false;
}

bool GetPropertyDescription::visit(FcTelecomAddress const& address)
{
    return textsOf(address, id) == nullptr;
}

} // namespace qev::fc::ui::propertyinterface
