#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/PresentationScope.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyTableValue;
using object::PropertyValue;

struct TableValueRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(model.wall("W1"), "Own");
    std::shared_ptr<FcPropertyTableValue> property =
        tableValue("Prices", {{label("small"), length(1)}, {length(2), label("b")}});

    TableValueRows() { set->HasProperties.addProperty(property); }

    EntityProperties row() const { return {model.data(), property}; }
};

TEST_F(TableValueRows, StandBelowTheProperty)
{
    auto const nodes = row().nodes();
    EXPECT_EQ(treeText(nodes), "Prices = TableValue [group]\n"
                               "  0\n"
                               "  1\n");
    EXPECT_EQ(nodes[0]->object, property);
    EXPECT_EQ(nodes[0]->children[1]->object, property);
}

TEST_F(TableValueRows, AreNoneUnlessBothColumnsAreSet)
{
    property->DefinedValues = std::nullopt;
    EXPECT_EQ(row().tree(), "Prices = TableValue [group]\n");
    property->DefinedValues = std::vector{length(1)};
    property->DefiningValues = std::nullopt;
    EXPECT_EQ(row().tree(), "Prices = TableValue [group]\n");
}

TEST_F(TableValueRows, ShowTheDefinedValue)
{
    EXPECT_EQ(row().value("0"), PropertyValue(std::optional(1.0)));
    EXPECT_EQ(row().value("1"), PropertyValue(std::optional<std::string>("b")));
    EXPECT_EQ(row().value("2"), PropertyValue());
    EXPECT_EQ(row().value("Name"), PropertyValue("Prices"));
}

TEST_F(TableValueRows, ShowNothingBesideADefiningValueThatDefinesNone)
{
    property->DefinedValues = std::vector{length(1)};
    EXPECT_EQ(row().tree(), "Prices = TableValue [group]\n"
                            "  0\n"
                            "  1\n");
    EXPECT_EQ(row().value("1"), PropertyValue());
    EXPECT_FALSE(row().hasQuantity("1"));
    EXPECT_EQ(row().quantity("1"), std::nullopt);
}

TEST_F(TableValueRows, AreNotWritten)
{
    for (char const* const id : {"0", "TableValue", "Name", "Expression"})
        row().set(id, std::optional<std::string>("x"));
    row().set("0", std::optional<double>());

    EXPECT_EQ(property->Name.get(), "Prices");
    EXPECT_EQ(property->Expression.get(), std::nullopt);
    EXPECT_EQ(property->DefinedValues.get(), (std::vector{length(1), label("b")}));
}

TEST_F(TableValueRows, AreLabelledByTheDefiningValue)
{
    EXPECT_EQ(row().name("0"), "small");
    auto const presentation = length(2).createQuantityPresentation();
    presentation->setValue(2);
    EXPECT_EQ(row().name("1"), presentation->text());
    EXPECT_EQ(row().name("2"), "");
    property->DefiningValues = std::vector{FcValue()};
    EXPECT_EQ(row().name("0"), "");
}

TEST_F(TableValueRows, LabelTheTableAsAProperty)
{
    texts.add("Own.Prices", "Preise");
    texts.add("Own.Prices_Description", "Je Breite");
    EXPECT_EQ(row().name("TableValue"), "Preise");
    EXPECT_EQ(row().description("TableValue"), "Je Breite");
    EXPECT_EQ(row().name("Name"), "Preise");
    EXPECT_EQ(row().name("Expression"), "Expression");
    EXPECT_EQ(row().description("Expression"), "");
}

TEST_F(TableValueRows, HaveThePresentationOfTheDefinedValue)
{
    EXPECT_TRUE(row().hasQuantity("0"));
    EXPECT_FALSE(row().hasQuantity("1"));
    EXPECT_EQ(row().quantity("0"), 1.0);
    EXPECT_EQ(row().quantity("1"), std::nullopt);
    for (char const* const id : {"2", "ListValue", "TableValue", "Name"}) {
        EXPECT_FALSE(row().hasQuantity(id));
        EXPECT_EQ(row().quantity(id), std::nullopt);
    }
}

TEST_F(TableValueRows, AreLabelledAndPresentedAsTheirSetPresentsThem)
{
    PresentationScope const speed("Own.Prices");
    property->DefiningValues = std::vector{real(4)};
    property->DefinedValues = std::vector{real(5)};

    EXPECT_EQ(row().name("0", "Own"), "4 m/s");
    EXPECT_EQ(row().name("0"), "4");
    EXPECT_EQ(row().quantity("0", "Own"), 5.0);
    EXPECT_EQ(row().quantity("0"), std::nullopt);
    EXPECT_FALSE(row().hasQuantity("0"));
}

} // namespace
