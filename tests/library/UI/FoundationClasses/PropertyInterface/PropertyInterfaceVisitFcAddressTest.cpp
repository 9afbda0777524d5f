#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"
#include "FoundationClasses/Resource/Actor/FcTelecomAddress.h"
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
using namespace fc::ui::propertyinterface;
using object::PropertyId;
using object::PropertyValue;
using Text = std::optional<std::string>;
using Lines = std::vector<std::string>;

struct AddressRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<FcPostalAddress> postal = std::make_shared<FcPostalAddress>();
    std::shared_ptr<FcTelecomAddress> telecom = std::make_shared<FcTelecomAddress>();

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
    static std::string description(fc::FcBase const& entity, std::string const& id)
    {
        return getPropertyDescription(entity, PropertyId(id));
    }
};

TEST_F(AddressRows, OfAPostalAddressStandWithoutAHeading)
{
    auto const rows = getProperties(*postal);
    EXPECT_EQ(treeText(rows), "AddressFirstLine\n"
                              "AddressSecondLine\n"
                              "Town\n"
                              "PostalBox\n"
                              "Region\n"
                              "PostalCode\n"
                              "Country\n");
    for (auto const& row : rows)
        EXPECT_EQ(row->object, postal);
}

TEST_F(AddressRows, ShowTheFirstTwoLines)
{
    EXPECT_EQ(value(*postal, "AddressFirstLine"), PropertyValue(Text()));
    postal->AddressLines = Lines{"Street 1"};
    EXPECT_EQ(value(*postal, "AddressFirstLine"), PropertyValue(Text("Street 1")));
    EXPECT_EQ(value(*postal, "AddressSecondLine"), PropertyValue(Text()));
    postal->AddressLines = Lines{"Street 1", "Yard"};
    EXPECT_EQ(value(*postal, "AddressSecondLine"), PropertyValue(Text("Yard")));
    postal->Town = "Town";
    EXPECT_EQ(value(*postal, "Town"), PropertyValue(Text("Town")));
}

TEST_F(AddressRows, AppendLinesUpToTheOneThatIsSet)
{
    set(*postal, "AddressSecondLine", Text("Yard"));
    EXPECT_EQ(postal->AddressLines.get(), (Lines{"", "Yard"}));
    set(*postal, "AddressFirstLine", Text("Street 1"));
    EXPECT_EQ(postal->AddressLines.get(), (Lines{"Street 1", "Yard"}));
    postal->AddressLines = Lines{"a", "b", "c"};
    set(*postal, "AddressSecondLine", Text("B"));
    EXPECT_EQ(postal->AddressLines.get(), (Lines{"a", "B", "c"}));
}

TEST_F(AddressRows, RemoveTheLastLineAndEmptyOneBeforeIt)
{
    postal->AddressLines = Lines{"a", "b"};
    set(*postal, "AddressFirstLine", Text());
    EXPECT_EQ(postal->AddressLines.get(), (Lines{"", "b"}));
    set(*postal, "AddressSecondLine", Text());
    EXPECT_EQ(postal->AddressLines.get(), (Lines{""}));
    set(*postal, "AddressSecondLine", Text());
    EXPECT_EQ(postal->AddressLines.get(), (Lines{""}));
    set(*postal, "AddressFirstLine", Text());
    EXPECT_EQ(postal->AddressLines.get(), Lines());
}

TEST_F(AddressRows, LeaveAnEmptyListOfLinesWhereThereWasNone)
{
    set(*postal, "AddressFirstLine", Text());
    EXPECT_EQ(postal->AddressLines.get(), Lines());
}

TEST_F(AddressRows, ReportALineOfAnotherKind)
{
    postal->AddressLines = Lines{"a"};
    set(*postal, "AddressFirstLine", "b");
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
    EXPECT_EQ(postal->AddressLines.get(), Lines());
}

TEST_F(AddressRows, WriteTheOtherPartsAsAttributes)
{
    set(*postal, "Town", Text("Town"));
    EXPECT_EQ(postal->Town.get(), "Town");
}

TEST_F(AddressRows, LabelLines)
{
    EXPECT_EQ(name(*postal, "AddressFirstLine"), "AddressLine1");
    EXPECT_EQ(name(*postal, "AddressSecondLine"), "AddressLine2");
    EXPECT_EQ(description(*postal, "AddressFirstLine"), "AddressLines_Description");
    texts.add("IfcPostalAddress.AddressLine1", "Line 1");
    texts.add("IfcPostalAddress.AddressLine2", "Line 2");
    texts.add("IfcPostalAddress.AddressLines_Description", "A line");
    texts.add("IfcPostalAddress.Town", "City");
    EXPECT_EQ(name(*postal, "AddressFirstLine"), "Line 1");
    EXPECT_EQ(name(*postal, "AddressSecondLine"), "Line 2");
    EXPECT_EQ(description(*postal, "AddressFirstLine"), "A line");
    EXPECT_EQ(description(*postal, "AddressSecondLine"), "A line");
    EXPECT_EQ(name(*postal, "Town"), "City");
}

// --- Telecommunication ------------------------------------------------------------------------------

TEST_F(AddressRows, OfATelecomAddressHaveOneNumberOfEachKind)
{
    EXPECT_EQ(treeText(getProperties(*telecom)), "TelecomAddress = FcBaseGroupProperty [group]\n"
                                                 "  Purpose\n"
                                                 "  Description\n"
                                                 "  UserDefinedPurpose\n"
                                                 "  TelephoneNumber\n"
                                                 "  FacsimileNumber\n"
                                                 "  PagerNumber\n"
                                                 "  MailAddress\n"
                                                 "  WWWHomePageURL\n"
                                                 "  MessagingIDs\n");
}

TEST_F(AddressRows, ShowTheFirstNumberOfEachKind)
{
    EXPECT_EQ(value(*telecom, "TelephoneNumber"), PropertyValue(Text()));
    telecom->TelephoneNumbers = Lines();
    EXPECT_EQ(value(*telecom, "TelephoneNumber"), PropertyValue(Text()));
    telecom->TelephoneNumbers = Lines{"1", "2"};
    telecom->FacsimileNumbers = Lines{"3"};
    telecom->ElectronicMailAddresses = Lines{"a@example.org"};
    EXPECT_EQ(value(*telecom, "TelephoneNumber"), PropertyValue(Text("1")));
    EXPECT_EQ(value(*telecom, "FacsimileNumber"), PropertyValue(Text("3")));
    EXPECT_EQ(value(*telecom, "MailAddress"), PropertyValue(Text("a@example.org")));
}

TEST_F(AddressRows, LeaveOneNumberWhereOneIsSet)
{
    telecom->TelephoneNumbers = Lines{"1", "2"};
    set(*telecom, "TelephoneNumber", Text("3"));
    EXPECT_EQ(telecom->TelephoneNumbers.get(), Lines{"3"});
    set(*telecom, "FacsimileNumber", Text("4"));
    EXPECT_EQ(telecom->FacsimileNumbers.get(), Lines{"4"});
    set(*telecom, "MailAddress", Text("b@example.org"));
    EXPECT_EQ(telecom->ElectronicMailAddresses.get(), Lines{"b@example.org"});
    set(*telecom, "TelephoneNumber", Text());
    EXPECT_EQ(telecom->TelephoneNumbers.get(), std::nullopt);
    set(*telecom, "PagerNumber", Text("5"));
    EXPECT_EQ(telecom->PagerNumber.get(), "5");
}

TEST_F(AddressRows, ClearNumbersAndReportAValueOfAnotherKind)
{
    telecom->TelephoneNumbers = Lines{"1"};
    set(*telecom, "TelephoneNumber", "2");
    expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                 "Object/PropertyValue");
    EXPECT_EQ(telecom->TelephoneNumbers.get(), std::nullopt);
}

TEST_F(AddressRows, LabelNumbersAndDescribeNone)
{
    EXPECT_EQ(name(*telecom, "TelephoneNumber"), "TelephoneNumber");
    EXPECT_EQ(name(*telecom, "FacsimileNumber"), "FacsimileNumber");
    EXPECT_EQ(name(*telecom, "MailAddress"), "ElectronicMailAddress");
    texts.add("IfcTelecomAddress.ElectronicMailAddress", "Mail");
    texts.add("IfcTelecomAddress.MailAddress_Description", "never shown");
    EXPECT_EQ(name(*telecom, "MailAddress"), "Mail");
    EXPECT_EQ(description(*telecom, "MailAddress"), "");
    texts.add("IfcTelecomAddress.PagerNumber_Description", "Pager");
    EXPECT_EQ(description(*telecom, "PagerNumber"), "Pager");
}

} // namespace
