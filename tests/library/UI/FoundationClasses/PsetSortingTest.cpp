#include "UI/FoundationClasses/PsetSorting.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ToySchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using core::kernel::FcPropertySet;
using core::kernel::FcPropertySetDefinition;
using core::productextension::FcElementQuantity;
using resource::property::FcProperty;
using testing::ElementsAre;

std::vector<std::string> sortedSets(std::vector<std::string> names)
{
    std::sort(names.begin(), names.end(),
              [](std::string_view a, std::string_view b) { return psetCompareLess(a, b); });
    return names;
}

template <class Set>
std::shared_ptr<Set> named(std::optional<std::string> const& name)
{
    auto set = std::make_shared<Set>();
    set->Name = name;
    return set;
}

// --- Sets ---------------------------------------------------------------------------------------

TEST(SetOrder, SetsOfTheStandardStandBeforeAllOthers)
{
    EXPECT_TRUE(psetCompareLess("Pset_Z", "Company"));
    EXPECT_FALSE(psetCompareLess("Company", "Pset_Z"));
    EXPECT_TRUE(psetCompareLess("Qto_Z", "Company"));
    EXPECT_FALSE(psetCompareLess("Company", "Qto_Z"));
}

TEST(SetOrder, APrefixAloneIsAStandardName)
{
    EXPECT_TRUE(psetCompareLess("Pset_", "A"));
    EXPECT_TRUE(psetCompareLess("Qto_", "A"));
}

TEST(SetOrder, ThePrefixIsTakenToTheLetter)
{
    for (auto const* const ordinary :
         {"Pset", "PsetWall", "Qto", "QtoWall", "pset_Wall", "QTO_Wall", " Pset_Wall"}) {
        EXPECT_TRUE(psetCompareLess("Pset_Z", ordinary)) << ordinary;
        EXPECT_FALSE(psetCompareLess(ordinary, "Pset_Z")) << ordinary;
    }
}

TEST(SetOrder, BothPrefixesAreOneGroup)
{
    EXPECT_THAT(sortedSets({"Qto_A", "Pset_B", "Qto_B", "Pset_A"}),
                ElementsAre("Pset_A", "Pset_B", "Qto_A", "Qto_B"));
}

TEST(SetOrder, NamesOfOneGroupAreInTheOrderInWhichPeopleLookForThem)
{
    EXPECT_THAT(sortedSets({"zebra", "Set 10", "Set 2", "Äpfel", "apple", "Apple", "Pset_10", "Pset_9"}),
                ElementsAre("Pset_9", "Pset_10", "Äpfel", "apple", "Apple", "Set 2", "Set 10", "zebra"));
}

TEST(SetOrder, IsStrictAndTotal)
{
    std::vector<std::string> const names{"",     "Pset_", "Pset_A",  "Pset_a", "Qto_A", "a",  "A",
                                         "Pset", "é",     "e\u0301", "01",     "1",     "a b"};
    for (auto const& a : names) {
        for (auto const& b : names)
            EXPECT_EQ(psetCompareLess(a, b) + psetCompareLess(b, a), a == b ? 0 : 1) << a << ", " << b;
    }
}

TEST(SetOrder, NullStandsFirstAndThenSetsWithoutAName)
{
    std::shared_ptr<FcPropertySetDefinition const> const none;
    std::shared_ptr<FcPropertySetDefinition const> const unnamed = named<FcPropertySet>(std::nullopt);
    std::shared_ptr<FcPropertySetDefinition const> const standard = named<FcElementQuantity>("Qto_A");
    std::shared_ptr<FcPropertySetDefinition const> const own = named<FcPropertySet>("Company");
    std::array const inOrder{none, unnamed, standard, own};

    for (std::size_t first = 0; first < inOrder.size(); ++first) {
        for (std::size_t second = 0; second < inOrder.size(); ++second)
            EXPECT_EQ(psetCompareLess(inOrder[first], inOrder[second]), first < second)
                << first << ", " << second;
    }
}

TEST(SetOrder, TwoSetsWithoutANameAreEqual)
{
    std::shared_ptr<FcPropertySetDefinition const> const a = named<FcPropertySet>(std::nullopt);
    std::shared_ptr<FcPropertySetDefinition const> const b = named<FcPropertySet>(std::nullopt);

    EXPECT_FALSE(psetCompareLess(a, b));
    EXPECT_FALSE(psetCompareLess(b, a));
}

TEST(SetOrder, TheEmptyNameIsAName)
{
    std::shared_ptr<FcPropertySetDefinition const> const unnamed = named<FcPropertySet>(std::nullopt);
    std::shared_ptr<FcPropertySetDefinition const> const empty = named<FcPropertySet>("");

    EXPECT_TRUE(psetCompareLess(unnamed, empty));
    EXPECT_FALSE(psetCompareLess(empty, unnamed));
}

// --- Entries of a set ---------------------------------------------------------------------------

class EntryOrder : public testing::Test
{
protected:
    template <class Set = FcPropertySet>
    PropertyCompareLess orderOf(std::optional<std::string> const& setName)
    {
        return {*named<Set>(setName), m_schema.get()};
    }
    template <class Set = FcPropertySet>
    std::vector<std::string> sortedFor(std::optional<std::string> const& setName,
                                       std::vector<std::string> names)
    {
        std::stable_sort(names.begin(), names.end(), orderOf<Set>(setName));
        return names;
    }

private:
    std::unique_ptr<qev::ifc::def::SchemaPset> m_schema =
        toySchemaWith(SetBuilder("Pset_Toy").single("Zinc", "IfcLabel").single("Iron", "IfcLabel").take(),
                      everyQuantity("Qto_Toy"));
};

TEST_F(EntryOrder, PropertiesOfTheStandardStandInItsOrderAndOthersFollowByName)
{
    EXPECT_THAT(sortedFor("Pset_Toy", {"Part 10", "Iron", "Part 2", "Amber", "Zinc"}),
                ElementsAre("Zinc", "Iron", "Amber", "Part 2", "Part 10"));
}

TEST_F(EntryOrder, QuantitiesOfTheStandardStandInItsOrderAndOthersFollowByName)
{
    EXPECT_THAT(sortedFor<FcElementQuantity>("Qto_Toy", {"Weight", "B", "Count", "A", "Area"}),
                ElementsAre("Area", "Count", "Weight", "A", "B"));
}

TEST_F(EntryOrder, ASetThatTheStandardDoesNotKnowIsSortedByNameAlone)
{
    EXPECT_THAT(sortedFor("Company", {"Zinc", "Iron", "Amber"}), ElementsAre("Amber", "Iron", "Zinc"));
}

TEST_F(EntryOrder, ASetWithoutANameIsSortedByNameAlone)
{
    EXPECT_THAT(sortedFor(std::nullopt, {"Zinc", "Iron", "Amber"}), ElementsAre("Amber", "Iron", "Zinc"));
}

TEST_F(EntryOrder, AKnownNameStandsBeforeItselfAndAnUnknownOneDoesNot)
{
    auto const order = orderOf("Pset_Toy");

    EXPECT_TRUE(order("Zinc", "Zinc"));
    EXPECT_FALSE(order("Amber", "Amber"));
}

TEST_F(EntryOrder, TwoPropertiesOfOneNameAreSortedAllTheSame)
{
    EXPECT_THAT(sortedFor("Pset_Toy", {"Iron", "Zinc", "Iron", "Amber", "Zinc"}),
                ElementsAre("Zinc", "Zinc", "Iron", "Iron", "Amber"));
}

TEST_F(EntryOrder, NamesAreComparedToTheLetter)
{
    EXPECT_THAT(sortedFor("Pset_Toy", {"Amber", "zinc", "Zinc"}), ElementsAre("Zinc", "Amber", "zinc"));
}

TEST_F(EntryOrder, OfPropertiesNullStandsFirst)
{
    auto const order = orderOf("Pset_Toy");
    std::shared_ptr<FcProperty const> const none;
    std::shared_ptr<FcProperty const> const zinc = singleValue("Zinc", label("Z"));
    std::shared_ptr<FcProperty const> const iron = singleValue("Iron", label("I"));

    EXPECT_TRUE(order(none, zinc));
    EXPECT_FALSE(order(zinc, none));
    EXPECT_FALSE(order(none, none));
    EXPECT_TRUE(order(zinc, iron));
    EXPECT_FALSE(order(iron, zinc));
}

TEST_F(EntryOrder, OfQuantitiesNullStandsFirst)
{
    using Quantity = std::shared_ptr<resource::quantity::FcPhysicalQuantity const>;
    auto const order = orderOf<FcElementQuantity>("Qto_Toy");
    Quantity const none;
    Quantity const length = quantity({"Length", 1.0, QuantityKind::Length});
    Quantity const count = quantity({"Count", 1.0, QuantityKind::Count});

    EXPECT_TRUE(order(none, length));
    EXPECT_FALSE(order(length, none));
    EXPECT_FALSE(order(none, none));
    EXPECT_TRUE(order(count, length));
    EXPECT_FALSE(order(length, count));
}

TEST_F(EntryOrder, WithoutASchemaNamesDecideAndThatIsReported)
{
    PropertyCompareLess const order(*named<FcPropertySet>("Pset_Toy"), nullptr);

    expectReport("Could not load schema", "qev::fc::ui::PropertyCompareLess::PropertyCompareLess",
                 "UI/FoundationClasses/PsetSorting");
    EXPECT_TRUE(order("Iron", "Zinc"));
    EXPECT_FALSE(order("Zinc", "Iron"));
}

TEST_F(EntryOrder, ASetWithoutANameNeedsNoSchema)
{
    PropertyCompareLess const order(*named<FcPropertySet>(std::nullopt), nullptr);

    EXPECT_TRUE(order("Iron", "Zinc"));
}

TEST_F(EntryOrder, TheStandardsOwnSetsAreKnown)
{
    PropertyCompareLess const common(*named<FcPropertySet>("Pset_WallCommon"));
    PropertyCompareLess const quantities(*named<FcElementQuantity>("Qto_WallBaseQuantities"));

    EXPECT_TRUE(common("Reference", "AcousticRating"));
    EXPECT_FALSE(common("AcousticRating", "Reference"));
    EXPECT_TRUE(quantities("Width", "Height"));
    EXPECT_TRUE(quantities("Height", "Company"));
}

} // namespace
