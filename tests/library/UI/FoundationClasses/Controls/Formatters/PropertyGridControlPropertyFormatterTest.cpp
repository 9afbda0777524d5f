#include "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter.h"

#include "kit/ReportRecorder.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using qev::ui::PropertyGridProperty;
using testing::_;
using testing::InSequence;
using testing::NiceMock;
using testing::Ref;
using testing::Return;
using testing::StrictMock;
using Names = std::vector<std::string>;
using Interface = PropertyGridControlPropertyFormatterInterface;

class Strategy : public PropertyGridControlPropertyFormatterStrategyInterface
{
public:
    MOCK_METHOD(std::optional<bool>, wantCustomButtonProperties, (), (const, override));
    MOCK_METHOD(std::optional<bool>, wantButton, (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(void, onButtonClicked, (std::string const&, std::string const&), (override));
    MOCK_METHOD(void, setObject, (std::shared_ptr<Data>, std::shared_ptr<FcBase>), (override));
    MOCK_METHOD(void, onPropertyCreated, (std::string const&, std::string const&, PropertyGridProperty&),
                (override));
    MOCK_METHOD(std::optional<Alignment>, getAlignment, (std::string const&, std::string const&),
                (const, override));
    MOCK_METHOD(std::optional<EmptyLineState>, getEmptyLineState, (std::string const&, std::string const&),
                (const, override));
    MOCK_METHOD(std::optional<HorizontalLineState>, getHorizontalLineState,
                (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(std::optional<bool>, wantBoldFontStyleForNameAndValue,
                (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(std::optional<unsigned int>, getPropertyNameIndentationInCharacters,
                (std::string const&, std::string const&), (const, override));
    MOCK_METHOD(std::optional<Names>, getPropertySetOrder, (), (const, override));
};

TEST(PropertyGridControlPropertyFormatter, WithoutStrategiesRowsArePlain)
{
    PropertyGridControlPropertyFormatter const formatter;

    EXPECT_FALSE(formatter.wantCustomButtonProperties());
    EXPECT_FALSE(formatter.wantButton("S", "P"));
    EXPECT_EQ(formatter.getAlignment("S", "P"), Interface::Alignment::Alignment0);
    EXPECT_EQ(formatter.getEmptyLineState("S", "P"), Interface::EmptyLineState::None);
    EXPECT_EQ(formatter.getHorizontalLineState("S", "P"), Interface::HorizontalLineState::None);
    EXPECT_FALSE(formatter.wantBoldFontStyleForNameAndValue("S", "P"));
    EXPECT_EQ(formatter.getPropertyNameIndentationInCharacters("S", "P"), 0u);
    EXPECT_EQ(formatter.getPropertySetOrder(), std::nullopt);
}

TEST(PropertyGridControlPropertyFormatter, TheFirstAnswerCounts)
{
    PropertyGridControlPropertyFormatter formatter;
    auto const silent = std::make_shared<NiceMock<Strategy>>();
    auto const first = std::make_shared<NiceMock<Strategy>>();
    auto const unasked = std::make_shared<StrictMock<Strategy>>();
    for (std::shared_ptr<Strategy> const& strategy :
         {std::shared_ptr<Strategy>(silent), std::shared_ptr<Strategy>(first),
          std::shared_ptr<Strategy>(unasked)})
        formatter.addStrategy(strategy);
    ON_CALL(*first, wantCustomButtonProperties()).WillByDefault(Return(true));
    ON_CALL(*first, wantButton(_, _)).WillByDefault(Return(true));
    ON_CALL(*first, getAlignment(_, _)).WillByDefault(Return(Interface::Alignment::Alignment1));
    ON_CALL(*first, getEmptyLineState(_, _)).WillByDefault(Return(Interface::EmptyLineState::After));
    ON_CALL(*first, getHorizontalLineState(_, _))
        .WillByDefault(Return(Interface::HorizontalLineState::Line1));
    ON_CALL(*first, wantBoldFontStyleForNameAndValue(_, _)).WillByDefault(Return(true));
    ON_CALL(*first, getPropertyNameIndentationInCharacters(_, _)).WillByDefault(Return(2u));
    ON_CALL(*first, getPropertySetOrder()).WillByDefault(Return(Names{"B", "A"}));

    EXPECT_TRUE(formatter.wantCustomButtonProperties());
    EXPECT_TRUE(formatter.wantButton("S", "P"));
    EXPECT_EQ(formatter.getAlignment("S", "P"), Interface::Alignment::Alignment1);
    EXPECT_EQ(formatter.getEmptyLineState("S", "P"), Interface::EmptyLineState::After);
    EXPECT_EQ(formatter.getHorizontalLineState("S", "P"), Interface::HorizontalLineState::Line1);
    EXPECT_TRUE(formatter.wantBoldFontStyleForNameAndValue("S", "P"));
    EXPECT_EQ(formatter.getPropertyNameIndentationInCharacters("S", "P"), 2u);
    EXPECT_EQ(formatter.getPropertySetOrder(), (Names{"B", "A"}));
}

TEST(PropertyGridControlPropertyFormatter, AllStrategiesAreToldInTheirOrder)
{
    PropertyGridControlPropertyFormatter formatter;
    auto const first = std::make_shared<StrictMock<Strategy>>();
    auto const second = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(first);
    formatter.addStrategy(second);
    PropertyGridProperty row("Group");
    InSequence const sequence;
    EXPECT_CALL(*first, setObject(_, _));
    EXPECT_CALL(*second, setObject(_, _));
    EXPECT_CALL(*first, onButtonClicked("S", "P"));
    EXPECT_CALL(*second, onButtonClicked("S", "P"));
    EXPECT_CALL(*first, onPropertyCreated("S", "P", Ref(row)));
    EXPECT_CALL(*second, onPropertyCreated("S", "P", Ref(row)));

    formatter.setObject(nullptr, nullptr);
    formatter.onButtonClicked("S", "P");
    formatter.onPropertyCreated("S", "P", row);
}

TEST(PropertyGridControlPropertyFormatter, AStrategyThatRefusesIsHeardBeforeALaterOneThatAgrees)
{
    PropertyGridControlPropertyFormatter formatter;
    auto const refusing = std::make_shared<NiceMock<Strategy>>();
    auto const agreeing = std::make_shared<StrictMock<Strategy>>();
    formatter.addStrategy(refusing);
    formatter.addStrategy(agreeing);
    ON_CALL(*refusing, wantCustomButtonProperties()).WillByDefault(Return(false));
    ON_CALL(*refusing, wantButton("S", "P")).WillByDefault(Return(false));
    ON_CALL(*refusing, getAlignment("S", "P")).WillByDefault(Return(Interface::Alignment::Alignment0));
    ON_CALL(*refusing, getEmptyLineState("S", "P")).WillByDefault(Return(Interface::EmptyLineState::None));
    ON_CALL(*refusing, getHorizontalLineState("S", "P"))
        .WillByDefault(Return(Interface::HorizontalLineState::None));
    ON_CALL(*refusing, wantBoldFontStyleForNameAndValue("S", "P")).WillByDefault(Return(false));
    ON_CALL(*refusing, getPropertyNameIndentationInCharacters("S", "P")).WillByDefault(Return(0u));
    ON_CALL(*refusing, getPropertySetOrder()).WillByDefault(Return(Names()));

    EXPECT_FALSE(formatter.wantCustomButtonProperties());
    EXPECT_FALSE(formatter.wantButton("S", "P"));
    EXPECT_EQ(formatter.getAlignment("S", "P"), Interface::Alignment::Alignment0);
    EXPECT_EQ(formatter.getEmptyLineState("S", "P"), Interface::EmptyLineState::None);
    EXPECT_EQ(formatter.getHorizontalLineState("S", "P"), Interface::HorizontalLineState::None);
    EXPECT_FALSE(formatter.wantBoldFontStyleForNameAndValue("S", "P"));
    EXPECT_EQ(formatter.getPropertyNameIndentationInCharacters("S", "P"), 0u);
    EXPECT_EQ(formatter.getPropertySetOrder(), Names());
}

TEST(PropertyGridControlPropertyFormatter, StatesHaveTheNumbersOfTheToolkit)
{
    EXPECT_EQ(static_cast<int>(Interface::Alignment::Alignment0), 0);
    EXPECT_EQ(static_cast<int>(Interface::Alignment::Alignment1), 1);
    EXPECT_EQ(static_cast<int>(Interface::EmptyLineState::None), 0);
    EXPECT_EQ(static_cast<int>(Interface::EmptyLineState::Before), 1);
    EXPECT_EQ(static_cast<int>(Interface::EmptyLineState::After), 2);
    EXPECT_EQ(static_cast<int>(Interface::EmptyLineState::BeforeAndAfter), 3);
    EXPECT_EQ(static_cast<int>(Interface::HorizontalLineState::None), 0);
    EXPECT_EQ(static_cast<int>(Interface::HorizontalLineState::Line0), 1);
    EXPECT_EQ(static_cast<int>(Interface::HorizontalLineState::Line1), 2);
    EXPECT_EQ(static_cast<int>(Interface::HorizontalLineState::Line2), 3);
}

TEST(PropertyGridControlPropertyFormatter, NoStrategyIsReportedAndLeftOut)
{
    PropertyGridControlPropertyFormatter formatter;

    formatter.addStrategy(nullptr);

    qev::test::expectReport("Strategy is nullptr.",
                            "qev::fc::ui::PropertyGridControlPropertyFormatter::addStrategy",
                            "UI/FoundationClasses/Controls/Formatters/PropertyGridControlPropertyFormatter");
    EXPECT_FALSE(formatter.wantButton("S", "P"));
}

} // namespace
