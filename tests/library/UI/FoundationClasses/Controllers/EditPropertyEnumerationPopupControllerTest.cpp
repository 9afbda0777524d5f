#include "UI/FoundationClasses/Controllers/EditPropertyEnumerationPopupController.h"

#include "PopupFixture.h"
#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::ui::EditPropertyEnumerationPopupController;
using testing::ElementsAre;
using testing::IsEmpty;
using ui::CheckState;

constexpr auto className = "EditPropertyEnumerationPopupController";

class EditPropertyEnumerationPopupControllerTest : public PopupFixture
{
protected:
    using Properties = std::vector<std::shared_ptr<FcPropertyEnumeratedValue>>;
    using Values = EditPropertyEnumerationPopupController::Values;

    void show(Properties properties)
    {
        controller = std::make_unique<EditPropertyEnumerationPopupController>(std::move(properties));
        controller->attachToControl(makePopup());
        controller->show([this](Values values) { results.push_back(std::move(values)); });
    }
    static std::shared_ptr<FcPropertyEnumeratedValue> finish(Values values)
    {
        return enumeratedValue("Finish", std::move(values), {label("oiled"), label("painted"), label("raw")});
    }

    std::unique_ptr<EditPropertyEnumerationPopupController> controller;
    std::vector<Values> results;
};

TEST_F(EditPropertyEnumerationPopupControllerTest, ListsTheAllowedValuesWithThoseThereAreTicked)
{
    show({finish({label("raw"), label("oiled")})});
    EXPECT_EQ(list->dump(), "  Values\n"
                            "  [x] oiled\n"
                            "  [ ] painted\n"
                            "  [x] raw\n");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(list->getCheckBoxMode(0), ui::ListControl::BoxWithValue);
}

TEST_F(EditPropertyEnumerationPopupControllerTest, TheDefinitionSaysTheValuesOfAPropertyWithoutAReference)
{
    auto const property = enumeratedValue("Status", {label("NEW")}, {});
    model.addSet(model.wall("W1"), "Pset_WallCommon")->HasProperties.addProperty(property);
    show({property});
    EXPECT_EQ(list->getRowCount(), 7u);
    EXPECT_EQ(list->getCellText(0, 0), "[ ] DEMOLISH");
    EXPECT_EQ(list->getCellText(2, 0), "[x] NEW");
}

TEST_F(EditPropertyEnumerationPopupControllerTest, TicksShowAtOnceAndGoToTheCallbackOnClosing)
{
    auto const property = finish({label("raw")});
    show({property});
    EXPECT_TRUE(list->clickCheckBox(1, 0));
    EXPECT_TRUE(list->clickCheckBox(2, 0));
    EXPECT_EQ(list->getCheckState(1, 0), CheckState::Checked);
    EXPECT_EQ(list->getCheckState(2, 0), CheckState::Unchecked);
    EXPECT_THAT(results, IsEmpty());
    turnElsewhere();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("painted"))));
    EXPECT_THAT(*property->EnumerationValues.get(), ElementsAre(label("raw")));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, AValueThatIsTickedComesLast)
{
    show({finish({label("raw"), label("painted")})});
    EXPECT_TRUE(list->clickCheckBox(0, 0));
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("raw"), label("painted"), label("oiled"))));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ClosingWithoutATickHandsTheSameValuesOn)
{
    show({finish({label("raw"), label("oiled")})});
    EXPECT_TRUE(ui::PopupControlAborter::current().abort());
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("raw"), label("oiled"))));
    EXPECT_FALSE(ui::PopupControlAborter::current().abort());
    EXPECT_EQ(results.size(), 1u);
}

TEST_F(EditPropertyEnumerationPopupControllerTest, AValueBetweenBlanksTicksItsRow)
{
    show({finish({label(" raw ")})});
    EXPECT_EQ(list->getCheckState(2, 0), CheckState::Checked);
    EXPECT_EQ(list->getCheckState(0, 0), CheckState::Unchecked);
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ComparesTextsExactly)
{
    show({finish({label("RAW"), label("paint"), fc::resource::measure::FcValue()})});
    for (std::size_t row = 0; row < 3; ++row)
        EXPECT_EQ(list->getCheckState(row, 0), CheckState::Unchecked);
}

TEST_F(EditPropertyEnumerationPopupControllerTest, AValueThatIsNotAllowedIsHandedOnWithTheOthers)
{
    show({finish({label("gilded"), label("raw")})});
    EXPECT_EQ(list->getRowCount(), 3u);
    EXPECT_TRUE(list->clickCheckBox(2, 0));
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("gilded"))));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, UntickingTakesAllCopiesOfTheValueAway)
{
    show({finish({label("raw"), label("oiled"), label("raw")})});
    EXPECT_TRUE(list->clickCheckBox(2, 0));
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("oiled"))));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, UntickingLeavesWhatOnlyReadsLikeTheValue)
{
    show({finish({label(" raw "), label("raw")})});
    EXPECT_TRUE(list->clickCheckBox(2, 0));
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(ElementsAre(label(" raw "))));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, AnyStateButCheckedUnticks)
{
    show({finish({label("raw")})});
    fireEvent(window.lock()->onCheckBoxClicked, Item{2, 0}, CheckState::Indeterminate);
    EXPECT_EQ(list->getCheckState(2, 0), CheckState::Unchecked);
}

TEST_F(EditPropertyEnumerationPopupControllerTest, TheListDoesNotGuardAgainstASecondCopy)
{
    show({finish({label("raw")})});
    fireEvent(window.lock()->onCheckBoxClicked, Item{2, 0}, CheckState::Checked);
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(ElementsAre(label("raw"), label("raw"))));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, APropertyWithoutValuesHasNoTicks)
{
    auto const property = finish({});
    property->EnumerationValues = std::nullopt;
    show({property});
    EXPECT_EQ(list->getCellText(0, 0), "[ ] oiled");
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(IsEmpty()));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, AnAbsentRowIsTheFirstAndARowPastTheEndIsNone)
{
    show({finish({label("oiled")})});
    auto const control = window.lock();
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{}), "oiled");
    EXPECT_EQ(fireEvent(control->onGetCheckState, Item{}), CheckState::Checked);
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{3, 0}), "");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{3, 5}), "");
    EXPECT_EQ(fireEvent(control->onGetCheckState, Item{3, 0}), std::nullopt);
    fireEvent(control->onCheckBoxClicked, Item{3, 0}, CheckState::Checked);
    fireEvent(control->onCheckBoxClicked, Item{}, CheckState::Unchecked);
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(IsEmpty()));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, TheCallbackMayEndThePopup)
{
    controller = std::make_unique<EditPropertyEnumerationPopupController>(Properties{finish({label("raw")})});
    controller->attachToControl(makePopup());
    std::string seen;
    controller->show([&, large = std::string(100, 'x')](Values const& values) {
        controller.reset();
        seen = values.front().getAsString(false).value_or("") + large.substr(98);
    });
    turnElsewhere();
    EXPECT_EQ(seen, "rawxx");
    EXPECT_TRUE(window.expired());
}

TEST_F(EditPropertyEnumerationPopupControllerTest, WithoutACallbackClosingIsHarmless)
{
    controller = std::make_unique<EditPropertyEnumerationPopupController>(Properties{finish({label("raw")})});
    controller->attachToControl(makePopup());
    controller->show(nullptr);
    turnElsewhere();
    EXPECT_FALSE(isOpen());
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ReportsSeveralPropertiesAndHandsNothingOn)
{
    for (auto const& properties : {Properties{}, Properties{finish({label("raw")}), finish({})}}) {
        results.clear();
        show(properties);
        expectPopupReport("Multi edit not supported yet.", className, className);
        EXPECT_EQ(list->getRowCount(), 0u);
        turnElsewhere();
        EXPECT_THAT(results, ElementsAre(IsEmpty()));
    }
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ReportsANullProperty)
{
    show({nullptr});
    expectPopupReport("Objet was nullptr", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    turnElsewhere();
    EXPECT_THAT(results, ElementsAre(IsEmpty()));
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ReportsUnknownColumns)
{
    show({finish({})});
    EXPECT_EQ(headerText(1), "");
    expectPopupReport("Unknown column", className, "handleGetColumnHeaderString");
    EXPECT_EQ(list->getText(0, 1), "");
    expectPopupReport("Unknown column", className, "handleGetItemString");
}

TEST_F(EditPropertyEnumerationPopupControllerTest, ReportsThatThereIsNoControlAndKeepsNoCallback)
{
    controller = std::make_unique<EditPropertyEnumerationPopupController>(Properties{finish({label("raw")})});
    controller->show([this](Values values) { results.push_back(std::move(values)); });
    expectPopupReport("Not attached to any control yet.", className, "show");

    controller->attachToControl(makePopup());
    window.lock()->show();
    turnElsewhere();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(results, IsEmpty());
}

} // namespace
