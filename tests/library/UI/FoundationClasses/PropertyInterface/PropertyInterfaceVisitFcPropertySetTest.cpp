#include "FoundationClasses/Core/Kernel/FcPropertySet.h"

#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "kit/ModelBuilder.h"
#include "library/kit/EntityProperties.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcPropertySet;
using object::PropertyValue;

struct SetRows : testing::Test
{
    TranslationScope texts;
    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");

    std::shared_ptr<FcPropertySet> set(std::string const& name, std::vector<NamedValue> const& values = {})
    {
        return model.addSet(wall, name, values);
    }
    EntityProperties of(std::shared_ptr<fc::FcBase> const& entity) const { return {model.data(), entity}; }
};

TEST_F(SetRows, StandBelowAHeadingOfTheSetsName)
{
    auto const own = set("Own", {{"A", label("a")}});

    auto const nodes = of(own).nodes();

    EXPECT_EQ(treeText(nodes), "Own = PropertySetDefinitionPsets [group]\n"
                               "  A = Name\n");
    EXPECT_EQ(nodes[0]->object, own);
    EXPECT_EQ(nodes[0]->children[0]->object, own->HasProperties.getProperties()[0]);
}

TEST_F(SetRows, StandInTheOrderOfTheDefinition)
{
    auto const common = set("Pset_WallCommon", {{"Zone", label("z")},
                                                {"IsExternal", boolean(true)},
                                                {"Area", label("a")},
                                                {"FireRating", label("F30")},
                                                {"Reference", label("r")}});

    EXPECT_EQ(of(common).tree(), "Pset_WallCommon = PropertySetDefinitionPsets [group]\n"
                                 "  Reference = Name\n"
                                 "  FireRating = Name\n"
                                 "  IsExternal = Name\n"
                                 "  Area = Name\n"
                                 "  Zone = Name\n");
}

TEST_F(SetRows, OfASetWithoutANameAreNone)
{
    auto const own = set("Own", {{"A", label("a")}});
    own->Name = std::nullopt;

    EXPECT_EQ(of(own).tree(), "");
    EXPECT_EQ(of(own).name("PropertySetDefinitionPsets"), "");
    EXPECT_EQ(of(own).description("PropertySetDefinitionPsets"), "");
}

TEST_F(SetRows, OfAnEmptySetSayThatItIsEmpty)
{
    texts.add("emptyProperty", "not asked for");
    texts.add("Empty property set", "not asked for");
    auto const own = set("Own");

    auto const nodes = of(own).nodes();

    EXPECT_EQ(treeText(nodes), "Own = PropertySetDefinitionPsets [group]\n"
                               "  emptyProperty\n");
    EXPECT_EQ(nodes[0]->children[0]->object, own);
    EXPECT_EQ(of(own).name("emptyProperty"), "Empty property set");
    EXPECT_EQ(of(own).value("emptyProperty"), PropertyValue());
    of(own).set("emptyProperty", std::optional<std::string>("x"));
    EXPECT_EQ(of(own).tree(), treeText(nodes));
}

TEST_F(SetRows, LabelTheHeadingByTheNameOfTheSet)
{
    auto const own = set("Own");
    EXPECT_EQ(of(own).name("PropertySetDefinitionPsets"), "Own");
    EXPECT_EQ(of(own).description("PropertySetDefinitionPsets"), "Own_Description");

    texts.add("Own", "Eigenes");
    texts.add("Own_Description", "Was wir brauchen");

    EXPECT_EQ(of(own).name("PropertySetDefinitionPsets"), "Eigenes");
    EXPECT_EQ(of(own).description("PropertySetDefinitionPsets"), "Was wir brauchen");
}

TEST_F(SetRows, LeaveOtherIdsToTheAttributes)
{
    auto const own = set("Own");

    EXPECT_EQ(of(own).value("Name"), PropertyValue(std::optional<std::string>("Own")));
    EXPECT_EQ(of(own).name("Name"), "Name");
    EXPECT_EQ(of(own).description("Name"), "");
}

} // namespace
