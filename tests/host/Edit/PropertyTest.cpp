#include "Edit/Property.h"
#include "ToyProperties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace qev;
using ui::edit::Property;

TEST(EditProperty, BeginsWithNothingButItsId)
{
    Property const row(object::PropertyId("Name"), 0, {}, nullptr);
    EXPECT_EQ(row.id, object::PropertyId("Name"));
    EXPECT_EQ(row.kind, 0u);
    EXPECT_FALSE(row.labelAndDescription);
    EXPECT_TRUE(row.children.empty());
    EXPECT_FALSE(row.isGroup);
    EXPECT_FALSE(row.isPartial);
    EXPECT_FALSE(row.fixedText);
}

TEST(EditProperty, TakesKindAndChildren)
{
    Property const child(object::PropertyId("Child"), 1, {}, nullptr);
    Property const row(object::PropertyId("Parent"), 2, {child}, nullptr);
    EXPECT_EQ(row.kind, 2u);
    ASSERT_EQ(row.children.size(), 1u);
    EXPECT_EQ(row.children[0].id, child.id);
    EXPECT_EQ(row.children[0].kind, 1u);
}

TEST(EditProperty, IsLabelledByWhatAnswersForIt)
{
    Property const row(object::PropertyId("Name"), 0, {}, std::make_shared<test::ToyProperties>());
    ASSERT_TRUE(row.labelAndDescription);
    EXPECT_EQ(row.labelAndDescription->first, "label of Name");
    EXPECT_EQ(row.labelAndDescription->second, "description of Name");
}

} // namespace
