#include "UI/FoundationClasses/Controls/Formatters/PropertyFormatter.h"

#include "FoundationClasses/AllEntities.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using qev::attr::Colour;
using testing::_;
using testing::InSequence;
using testing::NiceMock;
using testing::Return;
using testing::StrictMock;

class Strategy : public PropertyFormatterStrategyInterface
{
public:
    MOCK_METHOD(void, setObject, (std::shared_ptr<Data>, std::shared_ptr<FcBase>), (override));
    MOCK_METHOD(void, onPropertySetPropertyChanged,
                (std::shared_ptr<core::kernel::FcPropertySet const> const&, std::string const&), (override));
    MOCK_METHOD(void, onPropertyCustomButtonClicked, (std::string const&, std::string const&), (override));
    MOCK_METHOD(std::optional<std::string>, getRelatedValueProperty, (std::string const&, std::string const&),
                (const, override));
    MOCK_METHOD(std::optional<bool>, isEnabled, (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(std::optional<bool>, isReadOnly, (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(std::optional<Colour>, getBackgroundColour, (std::string const&, std::string const&),
                (const, override));
};

TEST(PropertyFormatter, WithoutStrategiesPropertiesAreEnabledPlainAndUnrelated)
{
    PropertyFormatter const formatter;

    EXPECT_TRUE(formatter.isEnabled("S", "P"));
    EXPECT_FALSE(formatter.isReadOnly("S", "P"));
    EXPECT_EQ(formatter.getBackgroundColour("S", "P"), std::nullopt);
    EXPECT_EQ(formatter.getRelatedValueProperty("S", "P"), std::nullopt);
}

TEST(PropertyFormatter, TheFirstAnswerCountsEvenWhenItIsFalse)
{
    PropertyFormatter formatter;
    auto const silent = std::make_shared<StrictMock<Strategy>>();
    auto const refusing = std::make_shared<StrictMock<Strategy>>();
    auto const unasked = std::make_shared<StrictMock<Strategy>>();
    for (auto const& strategy : {silent, refusing, unasked})
        formatter.addStrategy(strategy);
    EXPECT_CALL(*silent, isEnabled("S", "P")).WillOnce(Return(std::nullopt));
    EXPECT_CALL(*refusing, isEnabled("S", "P")).WillOnce(Return(false));

    EXPECT_FALSE(formatter.isEnabled("S", "P"));
}

TEST(PropertyFormatter, AnswersOfAllKindsComeFromTheStrategies)
{
    PropertyFormatter formatter;
    auto const strategy = std::make_shared<NiceMock<Strategy>>();
    formatter.addStrategy(strategy);
    ON_CALL(*strategy, isReadOnly(_, _)).WillByDefault(Return(true));
    ON_CALL(*strategy, getBackgroundColour(_, _)).WillByDefault(Return(Colour{1, 2, 3}));
    ON_CALL(*strategy, getRelatedValueProperty("S", "HasSize")).WillByDefault(Return("Size"));

    EXPECT_TRUE(formatter.isReadOnly("S", "P"));
    EXPECT_EQ(formatter.getBackgroundColour("S", "P"), (Colour{1, 2, 3}));
    EXPECT_EQ(formatter.getRelatedValueProperty("S", "HasSize"), "Size");
}

TEST(PropertyFormatter, AllStrategiesAreToldInTheirOrder)
{
    PropertyFormatter formatter;
    auto const first = std::make_shared<StrictMock<Strategy>>();
    auto const second = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(first);
    formatter.addStrategy(second);
    InSequence const sequence;
    EXPECT_CALL(*first, setObject(_, _));
    EXPECT_CALL(*second, setObject(_, _));
    EXPECT_CALL(*first, onPropertySetPropertyChanged(_, "P"));
    EXPECT_CALL(*second, onPropertySetPropertyChanged(_, "P"));
    EXPECT_CALL(*first, onPropertyCustomButtonClicked("S", "P"));
    EXPECT_CALL(*second, onPropertyCustomButtonClicked("S", "P"));

    formatter.setObject(nullptr, nullptr);
    formatter.onPropertySetPropertyChanged(nullptr, "P");
    formatter.onPropertyCustomButtonClicked("S", "P");
}

TEST(PropertyFormatter, NoStrategyIsReportedAndLeftOut)
{
    PropertyFormatter formatter;

    formatter.addStrategy(nullptr);

    qev::test::expectReport("Strategy is nullptr.", "qev::fc::ui::PropertyFormatter::addStrategy",
                            "UI/FoundationClasses/Controls/Formatters/PropertyFormatter");
    EXPECT_TRUE(formatter.isEnabled("S", "P"));
}

TEST(PropertyFormatter, AnObjectReachesAllStrategies)
{
    PropertyFormatter formatter;
    auto const strategy = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(strategy);
    qev::test::Model model;
    std::shared_ptr<FcBase> const wall = model.wall("W1");
    EXPECT_CALL(*strategy, setObject(model.data(), wall));

    formatter.setObject(model.data(), wall);
}

TEST(PropertyFormatter, AStrategyThatRefusesIsHeardBeforeALaterOneThatAgrees)
{
    PropertyFormatter formatter;
    auto const refusing = std::make_shared<NiceMock<Strategy>>();
    auto const agreeing = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(refusing);
    formatter.addStrategy(agreeing);
    ON_CALL(*refusing, isReadOnly("S", "P")).WillByDefault(Return(false));

    EXPECT_FALSE(formatter.isReadOnly("S", "P"));
}

} // namespace
