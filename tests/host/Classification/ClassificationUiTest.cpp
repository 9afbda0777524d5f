#include "Classification/ClassificationUi.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace qev::classification;
using namespace qev::classification::ui;
using qev::fc::core::kernel::FcObject;
using qev::fc::core::kernel::FcTypeObject;

struct ToySystem : ClassificationInterface
{
    [[nodiscard]] std::string getKey() const override { return "Toy"; }
    [[nodiscard]] std::string getDescription() const override { return "A toy"; }
};

struct ToyDialog : ClassificationDialogInterface
{
    std::vector<std::string> asked;

    std::vector<std::string> show(ClassificationInterface& system, FcObject const*, FcTypeObject const*,
                                  std::string_view selectedCode) override
    {
        asked.push_back(system.getKey() + " " + std::string(selectedCode));
        return {"B2", "C3"};
    }
};

TEST(ClassificationUi, ShowsTheDialogOfTheProgram)
{
    ToySystem system;
    auto const dialog = std::make_shared<ToyDialog>();
    setClassificationDialog(dialog);
    EXPECT_THAT(showClassificationUi(system, nullptr, nullptr, "A1"), testing::ElementsAre("B2", "C3"));
    EXPECT_THAT(dialog->asked, testing::ElementsAre("Toy A1"));
    setClassificationDialog(nullptr);
}

TEST(ClassificationUi, ChoosesNothingWithoutADialog)
{
    ToySystem system;
    EXPECT_TRUE(showClassificationUi(system, nullptr, nullptr, "").empty());
}

} // namespace
