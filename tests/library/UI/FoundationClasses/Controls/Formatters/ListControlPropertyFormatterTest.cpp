#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter.h"

#include "kit/ReportRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using testing::_;
using testing::ElementsAre;
using testing::InSequence;
using testing::IsEmpty;
using testing::NiceMock;
using testing::Return;
using testing::StrictMock;
using Column = ListControlPropertyFormatterInterface::CustomColumn;
using Columns = std::vector<Column>;

class Strategy : public ListControlPropertyFormatterStrategyInterface
{
public:
    MOCK_METHOD(void, setObject, (std::shared_ptr<Data>, std::shared_ptr<FcBase>), (override));
    MOCK_METHOD(void, setListControl, (std::shared_ptr<qev::ui::ListControl> const&), (override));
    MOCK_METHOD(void, onItemAndColumnCountUpdated, (), (override));
    MOCK_METHOD(std::optional<bool>, doesItemContainLocalValue, (std::string const&, std::string const&),
                (const, override));
    MOCK_METHOD(void, onResetItemToGlobalValue, (std::string const&, std::string const&), (override));
    MOCK_METHOD(std::optional<bool>, isPropertyToBeHiddenByDefault, (std::string const&, std::string const&),
                (const, override));
    MOCK_METHOD(std::optional<Columns>, getCustomColumns, (), (const, override));
    MOCK_METHOD(std::optional<std::string>, getCustomColumnItemString, (std::string const&),
                (const, override));
};

TEST(ListControlPropertyFormatter, WithoutStrategiesNothingIsLocalHiddenOrAdded)
{
    ListControlPropertyFormatter const formatter;

    EXPECT_FALSE(formatter.doesItemContainLocalValue("S", "P"));
    EXPECT_FALSE(formatter.isPropertyToBeHiddenByDefault("S", "P"));
    EXPECT_THAT(formatter.getCustomColumns(), IsEmpty());
    EXPECT_EQ(formatter.getCustomColumnItemString("id"), "");
}

TEST(ListControlPropertyFormatter, TheFirstAnswerCounts)
{
    ListControlPropertyFormatter formatter;
    auto const first = std::make_shared<NiceMock<Strategy>>();
    auto const second = std::make_shared<NiceMock<Strategy>>();
    formatter.addStrategy(first);
    formatter.addStrategy(second);
    ON_CALL(*first, doesItemContainLocalValue(_, _)).WillByDefault(Return(false));
    ON_CALL(*second, doesItemContainLocalValue(_, _)).WillByDefault(Return(true));
    ON_CALL(*second, isPropertyToBeHiddenByDefault(_, _)).WillByDefault(Return(true));
    ON_CALL(*second, getCustomColumnItemString("id")).WillByDefault(Return("text"));

    EXPECT_FALSE(formatter.doesItemContainLocalValue("S", "P"));
    EXPECT_TRUE(formatter.isPropertyToBeHiddenByDefault("S", "P"));
    EXPECT_EQ(formatter.getCustomColumnItemString("id"), "text");
}

TEST(ListControlPropertyFormatter, ColumnsOfAllStrategiesAreJoinedInTheirOrder)
{
    ListControlPropertyFormatter formatter;
    auto const first = std::make_shared<NiceMock<Strategy>>();
    auto const silent = std::make_shared<NiceMock<Strategy>>();
    auto const last = std::make_shared<NiceMock<Strategy>>();
    for (auto const& strategy : {first, silent, last})
        formatter.addStrategy(strategy);
    Column const a{"a", "A", std::nullopt};
    Column const b{"b", "B", ColumnPropertyNames{"S", "P"}};
    Column const c{"c", "C", std::nullopt};
    ON_CALL(*first, getCustomColumns()).WillByDefault(Return(Columns{a, b}));
    ON_CALL(*silent, getCustomColumns()).WillByDefault(Return(std::nullopt));
    ON_CALL(*last, getCustomColumns()).WillByDefault(Return(Columns{c}));

    EXPECT_THAT(formatter.getCustomColumns(), ElementsAre(a, b, c));
}

TEST(ListControlPropertyFormatter, AllStrategiesAreToldInTheirOrder)
{
    ListControlPropertyFormatter formatter;
    auto const first = std::make_shared<StrictMock<Strategy>>();
    auto const second = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(first);
    formatter.addStrategy(second);
    InSequence const sequence;
    EXPECT_CALL(*first, setObject(_, _));
    EXPECT_CALL(*second, setObject(_, _));
    EXPECT_CALL(*first, setListControl(_));
    EXPECT_CALL(*second, setListControl(_));
    EXPECT_CALL(*first, onItemAndColumnCountUpdated());
    EXPECT_CALL(*second, onItemAndColumnCountUpdated());
    EXPECT_CALL(*first, onResetItemToGlobalValue("S", "P"));
    EXPECT_CALL(*second, onResetItemToGlobalValue("S", "P"));

    formatter.setObject(nullptr, nullptr);
    formatter.setListControl(nullptr);
    formatter.onItemAndColumnCountUpdated();
    formatter.onResetItemToGlobalValue("S", "P");
}

TEST(ListControlPropertyFormatter, AStrategyThatRefusesIsHeardBeforeALaterOneThatAgrees)
{
    ListControlPropertyFormatter formatter;
    auto const refusing = std::make_shared<NiceMock<Strategy>>();
    auto const agreeing = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(refusing);
    formatter.addStrategy(agreeing);
    ON_CALL(*refusing, isPropertyToBeHiddenByDefault("S", "P")).WillByDefault(Return(false));
    ON_CALL(*refusing, getCustomColumnItemString("id")).WillByDefault(Return(""));

    EXPECT_FALSE(formatter.isPropertyToBeHiddenByDefault("S", "P"));
    EXPECT_EQ(formatter.getCustomColumnItemString("id"), "") << "an empty text is an answer too";
}

TEST(ListControlPropertyFormatter, NoStrategyIsReportedAndLeftOut)
{
    ListControlPropertyFormatter formatter;

    formatter.addStrategy(nullptr);

    qev::test::expectReport("Strategy is nullptr.", "qev::fc::ui::ListControlPropertyFormatter::addStrategy",
                            "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatter");
    EXPECT_FALSE(formatter.isPropertyToBeHiddenByDefault("S", "P"));
}

} // namespace
