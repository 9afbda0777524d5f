#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Actor/FcActorRole.h"
#include "FoundationClasses/Resource/Actor/FcOrganization.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::actor::FcPersonAndOrganization;

namespace {

constexpr char thePerson[] = "ThePerson";
constexpr char theOrganization[] = "TheOrganization";

/// The rows of \p member, whose heading becomes one of \p owner.
std::vector<std::shared_ptr<Property>> rowsOfMember(std::shared_ptr<FcBase const> const& member,
                                                    char const* id, FcPersonAndOrganization const& owner)
{
    if (!member)
        return {};
    auto rows = getProperties(*member);
    if (!rows.empty()) {
        auto const heading = makeGroup(id, owner);
        rows.front()->id = heading->id;
        rows.front()->mappedId = std::nullopt;
        rows.front()->object = heading->object;
    }
    return rows;
}

std::string memberLabel(char const* id, std::shared_ptr<FcBase const> const& member)
{
    return referenceLabel(localizeWithFallback(std::string("IfcPersonAndOrganization.") + id, id),
                          member.get());
}

} // namespace

bool GetProperties::visit(FcPersonAndOrganization const& entity)
{
    for (auto& row : rowsOfMember(entity.ThePerson->get(), thePerson, entity))
        properties.push_back(std::move(row));
    for (auto& row : rowsOfMember(entity.TheOrganization->get(), theOrganization, entity))
        properties.push_back(std::move(row));
    if (auto const& roles = entity.Roles.get())
        properties.push_back(makeList("Roles", entity, roles->get()));
    return false;
}

bool GetPropertyName::visit(FcPersonAndOrganization const& entity)
{
    if (id.text() == thePerson)
        name = memberLabel(thePerson, entity.ThePerson->get());
    else if (id.text() == theOrganization)
        name = memberLabel(theOrganization, entity.TheOrganization->get());
    else
        return true;
    return false;
}

} // namespace qev::fc::ui::propertyinterface
