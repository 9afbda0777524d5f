#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/PresentationScope.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyListValue;
using object::PropertyValue;

using Text = std::optional<std::string>;
using Values = std::optional<std::vector<FcValue>>;

struct ListValueRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(model.wall("W1"), "Own");
    std::shared_ptr<FcPropertyListValue> property = listValue("Widths", {length(1), length(2)});

    ListValueRows() { set->HasProperties.addProperty(property); }

    EntityProperties row() const { return {model.data(), property}; }
};

TEST_F(ListValueRows, StandBelowTheProperty)
{
    auto const nodes = row().nodes();
    EXPECT_EQ(treeText(nodes), "Widths = ListValue [group]\n"
                               "  0\n"
                               "  1\n");
    EXPECT_EQ(nodes[0]->object, property);
    EXPECT_EQ(nodes[0]->children[1]->object, property);
}

TEST_F(ListValueRows, AreNoneWithoutValues)
{
    property->ListValues = std::vector<FcValue>();
    EXPECT_EQ(row().tree(), "Widths = ListValue [group]\n");
    property->ListValues = std::nullopt;
    EXPECT_EQ(row().tree(), "Widths = ListValue [group]\n");
}

TEST_F(ListValueRows, ShowTheElementsInTheOptionalKind)
{
    property->ListValues = std::vector{length(1), label("a"), boolean(true), integer(3), FcValue()};

    EXPECT_EQ(row().value("0"), PropertyValue(std::optional(1.0)));
    EXPECT_EQ(row().value("1"), PropertyValue(Text("a")));
    EXPECT_EQ(row().value("2"), PropertyValue(std::optional(true)));
    EXPECT_EQ(row().value("3"), PropertyValue(std::optional(3)));
    EXPECT_EQ(row().value("4"), PropertyValue());
    EXPECT_EQ(row().value("5"), PropertyValue());
    EXPECT_EQ(row().value("Name"), PropertyValue("Widths"));
}

TEST_F(ListValueRows, ReportAReadOfTheWholeList)
{
    EXPECT_EQ(row().value("ListValue"), PropertyValue());
    expectReport("Property of IfcPropertyListValue has not been implemented.",
                 "qev::fc::ui::propertyinterface::GetValue::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcProperty");
}

TEST_F(ListValueRows, WriteOneElement)
{
    row().set("1", std::optional(5.0));
    EXPECT_EQ(property->ListValues.get(), Values({length(1), length(5)}));
    row().set("0", 4.0);
    EXPECT_EQ(property->ListValues.get(), Values({length(4), length(5)}));
    row().set("0", "wide");
    row().set("2", 6.0);
    row().set("ListValue", 6.0);
    EXPECT_EQ(property->ListValues.get(), Values({length(4), length(5)}));
}

TEST_F(ListValueRows, GoWithTheirValue)
{
    row().set("0", std::optional<double>());
    EXPECT_EQ(property->ListValues.get(), Values({length(2)}));
    row().set("1", std::optional<double>());
    EXPECT_EQ(property->ListValues.get(), Values({length(2)}));
    row().set("0", std::optional<double>());
    EXPECT_EQ(property->ListValues.get(), std::nullopt);
    row().set("0", std::optional<double>());
    EXPECT_EQ(property->ListValues.get(), std::nullopt);
    EXPECT_TRUE(row().isPresent());
}

TEST_F(ListValueRows, ReportWritingAnythingElse)
{
    row().set("Specification", std::optional<std::string>("agreed"));
    expectReport("Not implemented", "qev::fc::ui::propertyinterface::SetValue::visit",
                 "UI/FoundationClasses/PropertyInterface/PropertyInterfaceVisitFcProperty");
}

TEST_F(ListValueRows, AreCountedFromOne)
{
    EXPECT_EQ(row().name("0"), "1");
    EXPECT_EQ(row().name("41"), "42");
    EXPECT_THROW(static_cast<void>(row().name("Name")), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(row().name("99999999999999")), std::out_of_range);
}

TEST_F(ListValueRows, LabelTheListAsAProperty)
{
    texts.add("Own.Widths", "Breiten");
    texts.add("Own.Widths_Description", "Alle");
    EXPECT_EQ(row().name("ListValue"), "Breiten");
    EXPECT_EQ(row().description("ListValue"), "Alle");
    EXPECT_EQ(row().description("0"), "");
}

TEST_F(ListValueRows, HaveThePresentationOfTheirElement)
{
    property->ListValues = std::vector{length(1), label("a")};

    EXPECT_TRUE(row().hasQuantity("0"));
    EXPECT_FALSE(row().hasQuantity("1"));
    EXPECT_FALSE(row().hasQuantity("2"));
    EXPECT_FALSE(row().hasQuantity("ListValue"));
    EXPECT_FALSE(row().hasQuantity("Name"));
    EXPECT_EQ(row().quantity("0"), 1.0);
    EXPECT_EQ(row().quantity("1"), std::nullopt);
    EXPECT_EQ(row().quantity("2"), std::nullopt);
    EXPECT_EQ(row().quantity("ListValue"), std::nullopt);
    EXPECT_EQ(row().quantity("Name"), std::nullopt);
}

TEST_F(ListValueRows, HaveThePresentationThatIsSetForThePropertyOfTheSet)
{
    PresentationScope const speed("Own.Widths");
    property->ListValues = std::vector{real(3)};

    EXPECT_EQ(row().quantity("0", "Own"), 3.0);
    EXPECT_EQ(row().quantity("0"), std::nullopt);
    EXPECT_FALSE(row().hasQuantity("0"));
}

} // namespace
