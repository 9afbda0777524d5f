#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"

#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/PresentationScope.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyBoundedValue;
using object::PropertyValue;

constexpr char id[] = "BoundedValue";

struct BoundedValueRow : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::core::kernel::FcPropertySet> set = model.addSet(model.wall("W1"), "Own");
    std::shared_ptr<FcPropertyBoundedValue> property = boundedValue("Width", real(1), real(3), real(2));

    BoundedValueRow() { set->HasProperties.addProperty(property); }

    EntityProperties row() const { return {model.data(), property}; }
};

TEST_F(BoundedValueRow, IsALeafOfItsOwnId)
{
    auto const nodes = row().nodes();
    EXPECT_EQ(treeText(nodes), "Width = BoundedValue\n");
    EXPECT_EQ(nodes[0]->object, property);
}

TEST_F(BoundedValueRow, ShowsAllValuesInOneLine)
{
    EXPECT_EQ(row().value(id), PropertyValue("[1, 3] 2"));
    property->SetPointValue = FcValue();
    EXPECT_EQ(row().value(id), PropertyValue("[1, 3]"));
    EXPECT_EQ(row().value("Name"), PropertyValue("Width"));
}

TEST_F(BoundedValueRow, ShowsItsValuesAsItsSetPresentsThem)
{
    PresentationScope const speed("Own.Width");
    EXPECT_EQ(row().value(id, "Own"), PropertyValue("[1 m/s, 3 m/s] 2 m/s"));
    EXPECT_EQ(row().value(id, "Other"), PropertyValue("[1, 3] 2"));
    EXPECT_EQ(row().value(id), PropertyValue("[1, 3] 2"));
    EXPECT_EQ(row().quantity("Name", "Own"), 2.0);
    EXPECT_EQ(row().quantity("Name"), std::nullopt);
}

TEST_F(BoundedValueRow, IsNotWritten)
{
    row().set(id, "[4, 5]");
    row().set(id, std::optional<std::string>());
    row().set("Name", "Height");

    EXPECT_EQ(row().value(id), PropertyValue("[1, 3] 2"));
    EXPECT_EQ(property->Name.get(), "Width");
    EXPECT_TRUE(row().isPresent());
}

TEST_F(BoundedValueRow, IsLabelledAsAProperty)
{
    texts.add("Own.Width", "Breite");
    texts.add("Own.Width_Description", "Von bis");
    EXPECT_EQ(row().name(id), "Breite");
    EXPECT_EQ(row().description(id), "Von bis");
    EXPECT_EQ(row().name("Name"), "Breite");
    EXPECT_EQ(row().name("Specification"), "Specification");
    EXPECT_EQ(row().description("Specification"), "");
}

TEST_F(BoundedValueRow, HasNoPresentationOfItsLine)
{
    property->LowerBoundValue = length(1);
    EXPECT_FALSE(row().hasQuantity(id));
    EXPECT_FALSE(row().hasQuantity("Name"));
    EXPECT_EQ(row().quantity(id), std::nullopt);
}

TEST_F(BoundedValueRow, MakesThePresentationOfItsValuesByItsName)
{
    EXPECT_EQ(row().quantity("Name"), std::nullopt);
    property->SetPointValue = length(2);
    EXPECT_EQ(row().quantity("Name"), 2.0);
    property->SetPointValue = FcValue();
    property->LowerBoundValue = length(1);
    EXPECT_EQ(row().quantity("Name"), 1.0);
    property->LowerBoundValue = FcValue();
    property->UpperBoundValue = length(3);
    EXPECT_EQ(row().quantity("Name"), 3.0);
    EXPECT_EQ(row().quantity("Specification"), std::nullopt);
}

} // namespace
