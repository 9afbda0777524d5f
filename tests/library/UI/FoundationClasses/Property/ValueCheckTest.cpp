#include "UI/FoundationClasses/Property/ValueCheck.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ShownSet.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;

class QuantityValueCheck : public testing::Test
{
protected:
    bool takes(char const* name, char const* text)
    {
        auto const wall = model.wall("W");
        ShownSet const shown(everyQuantity("Qto"), {wall});
        bool const isTaken = wouldTake(shown[name], PropertyOrQuantityValue::fromText(text));
        using core::productextension::FcElementQuantity;
        EXPECT_EQ(wall->getPropertySetDefinitionNonConst<FcElementQuantity>("Qto"), nullptr);
        return isTaken;
    }

    Model model;
};

TEST_F(QuantityValueCheck, TakesWhatStartsWithANumberAndTheEmptyText)
{
    EXPECT_TRUE(takes("Length", "2.5"));
    EXPECT_TRUE(takes("Length", " -2.5 m"));
    EXPECT_TRUE(takes("Length", ""));
}

TEST_F(QuantityValueCheck, RefusesWordsAndNumbersBeyondAllBounds)
{
    EXPECT_FALSE(takes("Length", "many"));
    EXPECT_FALSE(takes("Length", "inf"));
    EXPECT_FALSE(takes("Length", "1e999"));
}

TEST_F(QuantityValueCheck, ACountHasTheBoundsOfAWholeNumber)
{
    EXPECT_TRUE(takes("Count", "1e18"));
    EXPECT_FALSE(takes("Count", "1e19"));
    EXPECT_TRUE(takes("Length", "1e19"));
}

} // namespace
