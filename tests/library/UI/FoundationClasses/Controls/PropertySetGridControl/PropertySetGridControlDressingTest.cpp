#include "DressedRowTest.h"

#include "FoundationClasses/AllEntities.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::PropertyGridAlignment;
using qev::ui::PropertyGridHorizontalLine;
using testing::Contains;
using testing::ElementsAre;
using testing::InSequence;
using testing::Return;
using testing::SizeIs;
using testing::StrictMock;

using PropertySetGridControlDressingTest = DressedRowTest;

TEST_F(PropertySetGridControlDressingTest, WithoutFormattersRowsLookAsTheToolkitMakesThem)
{
    gridFormatter.reset();

    show({model.wall("W1")});

    EXPECT_TRUE(state().enabled);
    EXPECT_TRUE(state().allowEdit);
    EXPECT_FALSE(state().bold);
}

TEST_F(PropertySetGridControlDressingTest, ADisabledRowIsInItsEmptyState)
{
    useFormatter();
    toyFormatter->enabled = false;
    toyFormatter->readOnly = true;
    toyFormatter->colour = qev::attr::Colour{1, 2, 3};

    show({model.wall("W1")});

    EXPECT_FALSE(state().enabled);
    EXPECT_TRUE(state().emptyState);
    EXPECT_TRUE(state().allowEdit);
    EXPECT_EQ(state().backgroundColour, std::nullopt);
}

TEST_F(PropertySetGridControlDressingTest, AReadOnlyRowCannotBeTypedInAndHasItsColour)
{
    useFormatter();
    toyFormatter->readOnly = true;
    toyFormatter->colour = qev::attr::Colour{1, 2, 3};

    show({model.wall("W1")});

    EXPECT_TRUE(state().enabled);
    EXPECT_FALSE(state().emptyState);
    EXPECT_FALSE(state().allowEdit);
    EXPECT_EQ(state().backgroundColour, (qev::attr::Colour{1, 2, 3}));
}

TEST_F(PropertySetGridControlDressingTest, AlignmentLineIndentationAndFontAreThoseOfTheGridFormatter)
{
    toyGridFormatter->alignment = GridFormatter::Alignment::Alignment1;
    toyGridFormatter->line = GridFormatter::HorizontalLineState::Line2;
    toyGridFormatter->indentation = 3;
    toyGridFormatter->bold = true;

    show({model.wall("W1")});

    EXPECT_EQ(state().alignment, PropertyGridAlignment::Right);
    EXPECT_EQ(state().horizontalLine, PropertyGridHorizontalLine::AboveAndBelow);
    EXPECT_EQ(state().nameIndentationInCharacters, 3u);
    EXPECT_TRUE(state().bold);
}

TEST_F(PropertySetGridControlDressingTest, LinesAreThoseOfTheToolkitCountedFromOne)
{
    using Line = GridFormatter::HorizontalLineState;
    for (auto const& [line, expected] :
         {std::pair(Line::None, std::optional<PropertyGridHorizontalLine>()),
          std::pair(Line::Line0, std::optional(PropertyGridHorizontalLine::Above)),
          std::pair(Line::Line1, std::optional(PropertyGridHorizontalLine::Below))}) {
        toyGridFormatter->line = line;
        if (control)
            control->setObject(model.data(), model.wall("W1"));
        else
            show({model.wall("W1")});
        EXPECT_EQ(state().horizontalLine, expected);
    }
}

TEST_F(PropertySetGridControlDressingTest, ADisabledRowHasItsLineAndButtonAndNothingElse)
{
    useFormatter();
    toyFormatter->enabled = false;
    toyGridFormatter->alignment = GridFormatter::Alignment::Alignment1;
    toyGridFormatter->line = GridFormatter::HorizontalLineState::Line0;
    toyGridFormatter->indentation = 3;
    toyGridFormatter->bold = true;
    toyGridFormatter->buttons = true;
    toyGridFormatter->emptyLine = GridFormatter::EmptyLineState::BeforeAndAfter;

    show({model.wall("W1")});

    EXPECT_EQ(state().horizontalLine, PropertyGridHorizontalLine::Above);
    EXPECT_EQ(state().buttonVisibleState, qev::ui::propertygridcontrol::button::VisibleState::Visible);
    EXPECT_EQ(state().alignment, PropertyGridAlignment::Left);
    EXPECT_EQ(state().nameIndentationInCharacters, 0u);
    EXPECT_FALSE(state().bold);
    EXPECT_THAT(kindsBelow("Pset_A"), ElementsAre(Kind::Value));
    EXPECT_THAT(toyGridFormatter->log, Contains("created Pset_A Code"));
}

TEST_F(PropertySetGridControlDressingTest, EmptyLinesStandWhereTheGridFormatterWantsThem)
{
    using State = GridFormatter::EmptyLineState;
    show({model.wall("W1")});
    auto const kindsWith = [&](State emptyLine) {
        toyGridFormatter->emptyLine = emptyLine;
        control->setObject(model.data(), model.wall("W1"));
        return kindsBelow("Pset_A");
    };

    EXPECT_THAT(kindsWith(State::None), ElementsAre(Kind::Value));
    EXPECT_THAT(kindsWith(State::Before), ElementsAre(Kind::EmptyLine, Kind::Value));
    EXPECT_THAT(kindsWith(State::After), ElementsAre(Kind::Value, Kind::EmptyLine));
    EXPECT_THAT(kindsWith(State::BeforeAndAfter), ElementsAre(Kind::EmptyLine, Kind::Value, Kind::EmptyLine));
}

TEST_F(PropertySetGridControlDressingTest, AnUnknownAlignmentIsReportedAndLeavesTheRow)
{
    toyGridFormatter->alignment = static_cast<GridFormatter::Alignment>(7);

    show({model.wall("W1")});

    expectControlReport("Unknown alignment.", "applyPropertyAlignment");
    EXPECT_EQ(state().alignment, PropertyGridAlignment::Left);
}

TEST_F(PropertySetGridControlDressingTest, AnUnknownLineIsReportedAndLeavesTheRow)
{
    toyGridFormatter->line = static_cast<GridFormatter::HorizontalLineState>(7);

    show({model.wall("W1")});

    expectControlReport("Unknown horizontal line state.", "applyPropertyHorizontalLineState");
    EXPECT_EQ(state().horizontalLine, std::nullopt);
}

TEST_F(PropertySetGridControlDressingTest, AnUnknownEmptyLineIsReportedBeforeAndAfterTheRow)
{
    toyGridFormatter->emptyLine = static_cast<GridFormatter::EmptyLineState>(7);

    show({model.wall("W1")});

    auto const reports = takeReports();
    ASSERT_THAT(reports, SizeIs(2));
    EXPECT_EQ(reports[0].text, "Unknown empty line state.");
    EXPECT_EQ(reports[0].function, "qev::fc::ui::PropertySetGridControl::applyEmptyLineState");
    EXPECT_EQ(reports[1].text, "Unknown empty line state.");
    EXPECT_EQ(reports[1].function,
              "qev::fc::ui::PropertySetGridControl::applyEmptyLineStateAfterPropertyWasAdded");
    EXPECT_THAT(kindsBelow("Pset_A"), ElementsAre(Kind::Value));
}

/// Runs the steps of dressing one by one.
class OpenControl : public PropertySetGridControl
{
public:
    using PropertySetGridControl::PropertySetGridControl;
    using Step = void (OpenControl::*)(std::string const&, std::string const&,
                                       qev::ui::PropertyGridProperty&);

    struct NamedStep
    {
        char const* name;
        Step step;
    };
    static std::vector<NamedStep> propertyFormatterSteps()
    {
        return {{"applyEnabledState", &OpenControl::applyEnabledState},
                {"applyReadOnlyState", &OpenControl::applyReadOnlyState},
                {"applyBackgroundColour", &OpenControl::applyBackgroundColour}};
    }
    static std::vector<NamedStep> gridFormatterSteps()
    {
        return {
            {"applyPropertyHorizontalLineState", &OpenControl::applyPropertyHorizontalLineState},
            {"applyPropertyAlignment", &OpenControl::applyPropertyAlignment},
            {"applyEmptyLineState", &OpenControl::applyEmptyLineState},
            {"applyEmptyLineStateAfterPropertyWasAdded",
             &OpenControl::applyEmptyLineStateAfterPropertyWasAdded},
            {"applyPropertyNameIndentation", &OpenControl::applyPropertyNameIndentation},
            {"applyPropertyFontStyle", &OpenControl::applyPropertyFontStyle},
            {"notifyFormatterThatPropertyWasCreated", &OpenControl::notifyFormatterThatPropertyWasCreated}};
    }
};

TEST_F(PropertySetGridControlDressingTest, EachStepOfDressingReportsThatItsFormatterIsMissing)
{
    OpenControl open(schema.get(), model.data(), dialog, filter, Formatters{}, {}, nullptr);
    qev::ui::PropertyGridProperty untouched("Code", std::string("A"), "", false);

    for (auto const& [name, step] : OpenControl::propertyFormatterSteps()) {
        (open.*step)("Pset_A", "Code", untouched);
        expectControlReport("Should only be called when property formatter exists.", name);
    }
    for (auto const& [name, step] : OpenControl::gridFormatterSteps()) {
        (open.*step)("Pset_A", "Code", untouched);
        expectControlReport("Should only be called when grid control property formatter exists.", name);
    }
    EXPECT_TRUE(untouched.isEnabled());
    EXPECT_EQ(untouched.getSubPropertyCount(), 0u);
}

class MockGridFormatter : public PropertyGridControlPropertyFormatterInterface
{
public:
    using Text = std::string const&;

    MOCK_METHOD(void, setObject, (std::shared_ptr<Data>, std::shared_ptr<FcBase>), (override));
    MOCK_METHOD(bool, wantCustomButtonProperties, (), (const, override));
    MOCK_METHOD(bool, wantButton, (Text, Text), (const, override));
    MOCK_METHOD(void, onButtonClicked, (Text, Text), (override));
    MOCK_METHOD(void, onPropertyCreated, (Text, Text, qev::ui::PropertyGridProperty&), (override));
    MOCK_METHOD(Alignment, getAlignment, (Text, Text), (const, override));
    MOCK_METHOD(EmptyLineState, getEmptyLineState, (Text, Text), (const, override));
    MOCK_METHOD(HorizontalLineState, getHorizontalLineState, (Text, Text), (const, override));
    MOCK_METHOD(bool, wantBoldFontStyleForNameAndValue, (Text, Text), (const, override));
    MOCK_METHOD(unsigned int, getPropertyNameIndentationInCharacters, (Text, Text), (const, override));
    MOCK_METHOD(std::optional<std::vector<std::string>>, getPropertySetOrder, (), (const, override));
};

TEST_F(PropertySetGridControlDressingTest, AsksTheGridFormatterForOneThingAfterTheOther)
{
    auto const mock = std::make_shared<StrictMock<MockGridFormatter>>();
    gridFormatter = mock;
    InSequence const sequence;
    EXPECT_CALL(*mock, getPropertySetOrder());
    // The factory asks which kind of row it is to make, and the control which one it got.
    EXPECT_CALL(*mock, wantCustomButtonProperties()).Times(2);
    EXPECT_CALL(*mock, wantButton("Pset_A", "Code"));
    EXPECT_CALL(*mock, getHorizontalLineState("Pset_A", "Code"));
    EXPECT_CALL(*mock, getAlignment("Pset_A", "Code"));
    EXPECT_CALL(*mock, getEmptyLineState("Pset_A", "Code"));
    EXPECT_CALL(*mock, getPropertyNameIndentationInCharacters("Pset_A", "Code")).WillOnce(Return(2u));
    EXPECT_CALL(*mock, wantBoldFontStyleForNameAndValue("Pset_A", "Code"));
    EXPECT_CALL(*mock, onPropertyCreated("Pset_A", "Code", testing::_))
        .WillOnce([](std::string const&, std::string const&, qev::ui::PropertyGridProperty& dressed) {
            dressed.setNameIndentationInCharacters(5);
        });
    EXPECT_CALL(*mock, getEmptyLineState("Pset_A", "Code"));

    show({model.wall("W1")});

    EXPECT_EQ(state().nameIndentationInCharacters, 5u) << "the formatter has the last word";
}

TEST_F(PropertySetGridControlDressingTest, RowsOfAttributesHaveNoEmptyLineBelow)
{
    filter->excludedSets = {"Type Attributes", "Pset_A"};
    toyGridFormatter->emptyLine = GridFormatter::EmptyLineState::BeforeAndAfter;
    show({model.wall("W1")});

    control->hideUnusedProperties();

    EXPECT_THAT(kindsBelow("IfcWall"),
                ElementsAre(Kind::EmptyLine, Kind::Value, Kind::EmptyLine, Kind::Value));
    EXPECT_THAT(toyGridFormatter->log, Contains("created IfcWall Name"));
}

TEST_F(PropertySetGridControlDressingTest, ARowThatIsEnabledAgainShowsItsValue)
{
    useFormatter();
    toyFormatter->enabled = false;
    auto const wall = model.wall("W1");
    show({wall});

    toyFormatter->enabled = true;
    control->setObject(model.data(), wall);

    EXPECT_TRUE(state().enabled);
    EXPECT_FALSE(state().emptyState);
}

} // namespace
