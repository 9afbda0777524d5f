#include "Classification/HeadlessClassificationDialog.h"
#include "Classification/ClassificationSystem.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"

#include <gtest/gtest.h>

namespace qev::test {
namespace {

using namespace classification;
using Codes = std::vector<std::string>;

class HeadlessClassificationDialogTest : public testing::Test
{
protected:
    HeadlessClassificationDialogTest() { ui::setClassificationDialog(dialog); }
    ~HeadlessClassificationDialogTest() override { ui::setClassificationDialog(nullptr); }

    std::shared_ptr<ui::HeadlessClassificationDialog> dialog =
        std::make_shared<ui::HeadlessClassificationDialog>();
    ClassificationSystem system{{"Classes", "", "", ""},
                                {{"330", "Walls", "", ""}, {"331", "Brick", "", "330"}}};
};

TEST_F(HeadlessClassificationDialogTest, AnswersWithTheWayToTheCodeItWasGiven)
{
    dialog->answer("331");
    fc::shared::sharedbldgelements::FcWall const wall;
    EXPECT_EQ(ui::showClassificationUi(system, &wall, nullptr, "330"), (Codes{"330", "331"}));
    EXPECT_EQ(dialog->getCalls(),
              (std::vector<ui::HeadlessClassificationDialog::Call>{{"Classes", true, false, "330"}}));
}

TEST_F(HeadlessClassificationDialogTest, IsCancelledWithoutAnAnswer)
{
    dialog->answer("330");
    EXPECT_EQ(ui::showClassificationUi(system, nullptr, nullptr, ""), (Codes{"330"}));
    EXPECT_EQ(ui::showClassificationUi(system, nullptr, nullptr, ""), Codes());
    EXPECT_EQ(dialog->getCalls().size(), 2u);
}

TEST_F(HeadlessClassificationDialogTest, RemembersCodesThatTheSystemDoesNotHave)
{
    dialog->answer("999");
    EXPECT_EQ(ui::showClassificationUi(system, nullptr, nullptr, ""), Codes());
    EXPECT_EQ(dialog->getUnknownCodes(), (Codes{"999"}));
}

} // namespace
} // namespace qev::test
