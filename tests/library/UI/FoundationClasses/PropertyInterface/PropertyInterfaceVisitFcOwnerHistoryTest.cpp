#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"

#include "FoundationClasses/Resource/Actor/FcActorRole.h"
#include "FoundationClasses/Resource/Actor/FcOrganization.h"
#include "FoundationClasses/Resource/Actor/FcPerson.h"
#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"
#include "FoundationClasses/Resource/Utility/FcApplication.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/PropertyTree.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using namespace fc::resource::actor;
using namespace fc::resource::utility;
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;
using Text = std::optional<std::string>;

struct ActorRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcPerson> person = std::make_shared<FcPerson>();
    std::shared_ptr<FcOrganization> organization = std::make_shared<FcOrganization>();
    std::shared_ptr<FcPersonAndOrganization> both = std::make_shared<FcPersonAndOrganization>();
    std::shared_ptr<FcOwnerHistory> history = std::make_shared<FcOwnerHistory>();

    PropertyValue value(fc::FcBase const& entity, std::string const& id) const
    {
        return getValue(*model.data(), entity, PropertyId(id), std::nullopt);
    }
    void set(fc::FcBase& entity, std::string const& id, PropertyValue const& value)
    {
        setValue(*model.data(), entity, PropertyId(id), value);
    }
    std::string name(fc::FcBase const& entity, std::string const& id) const
    {
        return getPropertyName(*model.data(), entity, PropertyId(id), std::nullopt);
    }
};

// --- Persons ----------------------------------------------------------------------------------------

TEST_F(ActorRows, OfAPersonAreNone) { EXPECT_EQ(treeText(getProperties(*person)), ""); }

TEST_F(ActorRows, TakeTheGivenNameAsAPersonsName)
{
    EXPECT_EQ(value(*person, "Name"), PropertyValue(Text()));
    set(*person, "Name", Text("Jo"));
    EXPECT_EQ(person->GivenName.get(), "Jo");
    EXPECT_EQ(value(*person, "Name"), PropertyValue(Text("Jo")));
    set(*person, "FamilyName", Text("Doe"));
    EXPECT_EQ(value(*person, "FamilyName"), PropertyValue(Text("Doe")));
    EXPECT_EQ(name(*person, "Name"), "Name");
    texts.add("IfcPerson.Name", "not asked for");
    texts.add("IfcSite.Name", "Label");
    EXPECT_EQ(name(*person, "Name"), "Label");
}

TEST_F(ActorRows, OfAPersonAndOrganizationAreThoseOfBoth)
{
    EXPECT_EQ(treeText(getProperties(*both)), "");
    both->ThePerson = person;
    both->TheOrganization = organization;
    auto const role = std::make_shared<FcActorRole>();
    both->Roles = fc::ReferenceList<FcActorRole>({role});

    auto const rows = getProperties(*both);

    EXPECT_EQ(treeText(rows), "TheOrganization [group]\n"
                              "  Identification\n"
                              "  Name\n"
                              "  Description\n"
                              "Roles [group] [list]\n"
                              "  ActorRole = FcBaseGroupProperty [group]\n"
                              "    Role\n"
                              "    UserDefinedRole\n"
                              "    Description\n");
    EXPECT_EQ(rows[0]->object, both);
    EXPECT_EQ(rows[0]->children.front()->object, organization);
    EXPECT_EQ(rows[1]->object, both);
}

TEST_F(ActorRows, LabelPersonAndOrganizationWithTheirClass)
{
    EXPECT_EQ(name(*both, "ThePerson"), "ThePerson");
    both->ThePerson = person;
    both->TheOrganization = organization;
    EXPECT_EQ(name(*both, "ThePerson"), "ThePerson(IfcPerson)");
    EXPECT_EQ(name(*both, "TheOrganization"), "TheOrganization(IfcOrganization)");
    texts.add("IfcPersonAndOrganization.ThePerson", "Who ");
    texts.add("IfcPersonAndOrganization.TheOrganization", "Of whom ");
    texts.add("IfcPerson", "person");
    EXPECT_EQ(name(*both, "ThePerson"), "Who (person)");
    EXPECT_EQ(name(*both, "TheOrganization"), "Of whom (IfcOrganization)");
}

// --- Owner histories --------------------------------------------------------------------------------

TEST_F(ActorRows, OfAnOwnerHistoryEndWithWhomItNames)
{
    both->TheOrganization = organization;
    history->OwningUser = both;
    history->LastModifyingUser = both;
    history->OwningApplication = std::make_shared<FcApplication>();

    auto const rows = getProperties(*history);
    auto const group = rows.front();

    EXPECT_EQ(childIds(*group),
              (std::vector<std::string>{"State", "ChangeAction", "LastModifiedDate", "CreationDate",
                                        "OwningUser", "OwningApplication", "LastModifyingUser"}));
    auto const owner = nodeAt(rows, "OwnerHistory/OwningUser");
    EXPECT_TRUE(owner->isGroup);
    EXPECT_EQ(owner->object, history);
    EXPECT_EQ(childIds(*owner), std::vector<std::string>{"TheOrganization"});
    history->LastModifyingApplication = std::make_shared<FcApplication>();
    auto const all = getProperties(*history);
    EXPECT_TRUE(nodeAt(all, "OwnerHistory/LastModifyingApplication/Application"));
    auto const ids = childIds(*all.front());
    EXPECT_EQ(
        std::vector(ids.end() - 3, ids.end()),
        (std::vector<std::string>{"OwningApplication", "LastModifyingUser", "LastModifyingApplication"}));
}

TEST_F(ActorRows, ShowDatesAsTexts)
{
    history->CreationDate = 1772443800;
    EXPECT_EQ(value(*history, "CreationDate"), PropertyValue("2026-03-02 09:30:00"));
    EXPECT_EQ(value(*history, "LastModifiedDate"), PropertyValue(Text()));
    history->LastModifiedDate = 0;
    EXPECT_EQ(value(*history, "LastModifiedDate"), PropertyValue(Text("1970-01-01 00:00:00")));
}

TEST_F(ActorRows, ReportDatesOfAnotherKind)
{
    history->CreationDate = 1;
    history->LastModifiedDate = 2;

    set(*history, "CreationDate", Text("2026-03-02 09:30:00"));
    EXPECT_EQ(takeReportTexts(), std::vector<std::string>{"Property value doesn't hold the given type."});
    set(*history, "LastModifiedDate", "2026-03-02 09:30:00");
    EXPECT_EQ(takeReportTexts(), std::vector<std::string>{"Property value doesn't hold the given type."});

    EXPECT_EQ(history->CreationDate.get(), 1);
    EXPECT_EQ(history->LastModifiedDate.get(), std::nullopt);
}

TEST_F(ActorRows, ReadDatesInTwoForms)
{
    set(*history, "CreationDate", "2026-03-02 09:30:00");
    EXPECT_EQ(history->CreationDate.get(), 1772443800);
    set(*history, "CreationDate", "03.03.2026 09:30:00");
    EXPECT_EQ(history->CreationDate.get(), 1772443800 + 86400);
    set(*history, "CreationDate", "tomorrow");
    EXPECT_EQ(history->CreationDate.get(), 1772443800 + 86400);

    set(*history, "LastModifiedDate", Text("1970-01-02 00:00:00"));
    EXPECT_EQ(history->LastModifiedDate.get(), 86400);
    set(*history, "LastModifiedDate", Text("03.01.1970 00:00:00"));
    EXPECT_EQ(history->LastModifiedDate.get(), 2 * 86400);
    set(*history, "LastModifiedDate", Text("tomorrow"));
    EXPECT_EQ(history->LastModifiedDate.get(), 2 * 86400);
    set(*history, "LastModifiedDate", Text());
    EXPECT_EQ(history->LastModifiedDate.get(), std::nullopt);
    set(*history, "State", Text("READWRITE"));
    EXPECT_EQ(history->State.get(), fc::FcStateEnum::READWRITE);
}

} // namespace
