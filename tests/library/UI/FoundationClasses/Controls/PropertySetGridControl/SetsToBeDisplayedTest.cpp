#include "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed.h"

#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

class SetsToBeDisplayedTest : public testing::Test
{
protected:
    void expectTooFew()
    {
        expectReport("List containing requested property set contains too few entries.",
                     "qev::fc::ui::SetsToBeDisplayed::getOrderedNames",
                     "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed");
    }

    ShownSet a{SetBuilder("A").take(), {}};
    ShownSet b{SetBuilder("B").take(), {}};
    SetsToBeDisplayed sets;
};

TEST_F(SetsToBeDisplayedTest, WithoutARequestSetsStandInTheirOwnOrder)
{
    sets.add(b.set());
    sets.add(a.set());

    EXPECT_THAT(sets.getOrderedNames(), ElementsAre("B", "A"));
}

TEST_F(SetsToBeDisplayedTest, ARequestOfAsManyNamesCountsAsItStands)
{
    sets.add(a.set());
    sets.add(b.set());
    sets.requestedOrder = {"Unknown", "B"};

    EXPECT_THAT(sets.getOrderedNames(), ElementsAre("Unknown", "B"));
}

TEST_F(SetsToBeDisplayedTest, ARequestOfMoreNamesCountsAsItStands)
{
    sets.add(a.set());
    sets.requestedOrder = {"B", "A", "B"};

    EXPECT_THAT(sets.getOrderedNames(), ElementsAre("B", "A", "B"));
}

TEST_F(SetsToBeDisplayedTest, ARequestOfFewerNamesIsReportedAndDoesNotCount)
{
    sets.add(a.set());
    sets.add(b.set());
    sets.requestedOrder = {"B"};

    EXPECT_THAT(sets.getOrderedNames(), ElementsAre("A", "B"));
    expectTooFew();
}

TEST_F(SetsToBeDisplayedTest, AnEmptyRequestIsEnoughForNoSets)
{
    sets.requestedOrder = std::vector<std::string>();

    EXPECT_THAT(sets.getOrderedNames(), IsEmpty());
}

TEST_F(SetsToBeDisplayedTest, OfSeveralSetsWithOneNameTheFirstCounts)
{
    ShownSet again{SetBuilder("A").take(), {}};
    sets.add(a.set());
    sets.add(again.set());
    sets.requestedOrder = {"A"};

    EXPECT_THAT(sets.names, ElementsAre("A", "A"));
    EXPECT_EQ(sets.definitionsByName.at("A"), &a.set());
    EXPECT_THAT(sets.getOrderedNames(), ElementsAre("A"));
}

} // namespace
