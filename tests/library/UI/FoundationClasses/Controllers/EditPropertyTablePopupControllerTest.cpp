#include "UI/FoundationClasses/Controllers/EditPropertyTablePopupController.h"

#include "PopupFixture.h"

#include <cmath>

namespace {

using namespace qev;
using namespace qev::test;
using fc::resource::property::FcPropertyTableValue;
using fc::ui::EditPropertyTablePopupController;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using ui::ListControl;

constexpr auto className = "EditPropertyTablePopupController";

class EditPropertyTablePopupControllerTest : public PopupFixture
{
protected:
    using Properties = std::vector<std::shared_ptr<FcPropertyTableValue>>;
    using Rows = EditPropertyTablePopupController::Rows;

    void show(Properties properties)
    {
        controller =
            std::make_unique<EditPropertyTablePopupController>(model.data(), std::move(properties), "");
        controller->attachToControl(makePopup());
        controller->show([this](Rows rows) { results.push_back(std::move(rows)); });
    }
    Rows close()
    {
        turnElsewhere();
        EXPECT_EQ(results.size(), 1u);
        return results.empty() ? Rows() : results.front();
    }
    static std::shared_ptr<FcPropertyTableValue> lengths()
    {
        return tableValue("Curve", {{real(1), length(0.25)}, {real(2), length(0.5)}});
    }
    /// An empty table of the standard, whose definition says the types of its columns.
    std::shared_ptr<FcPropertyTableValue> emptyPath()
    {
        auto property = tableValue("LinearPath", {});
        model.addSet(model.wall("W1"), "Pset_ElementKinematics")->HasProperties.addProperty(property);
        return property;
    }
    static FcValue seconds(double value) { return number("TimeMeasure", value); }

    std::unique_ptr<EditPropertyTablePopupController> controller;
    std::vector<Rows> results;
};

TEST_F(EditPropertyTablePopupControllerTest, ShowsTheRowsInTheUnitsOfTheUser)
{
    show({lengths()});
    EXPECT_EQ(list->dump(), "  Defining value | Defined value\n"
                            "  1 | 0.25 m\n"
                            "  2 | 0.5 m\n");
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(EditPropertyTablePopupControllerTest, TurnsLabelEditOn)
{
    show({lengths()});
    EXPECT_EQ(list->getStyleFlags(), 11u);
    EXPECT_TRUE(list->beginEdit(1, 0));
    EXPECT_EQ(list->getEdit()->editor, (ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}}));
}

TEST_F(EditPropertyTablePopupControllerTest, TheLongerColumnLosesItsTail)
{
    auto const property = tableValue("Curve", {});
    property->DefiningValues = std::vector{real(1), real(2), real(3), real(4), real(5)};
    property->DefinedValues = std::vector{real(10), real(20), real(30)};
    show({property});
    EXPECT_EQ(list->getRowCount(), 3u);
    EXPECT_THAT(close(),
                ElementsAre(Pair(real(1), real(10)), Pair(real(2), real(20)), Pair(real(3), real(30))));
}

TEST_F(EditPropertyTablePopupControllerTest, WithoutOneOfTheColumnsThereAreNoRows)
{
    auto const property = lengths();
    property->DefinedValues = std::nullopt;
    show({property});
    EXPECT_EQ(list->getRowCount(), 0u);
    property->DefinedValues = std::vector{real(1)};
    property->DefiningValues = std::nullopt;
    show({property});
    EXPECT_EQ(list->getRowCount(), 0u);
}

TEST_F(EditPropertyTablePopupControllerTest, KnowsTheUnitsOfTheProperty)
{
    auto const property = lengths();
    show({property});
    EXPECT_EQ(controller->getDefiningUnit(), &property->DefiningUnit.get());
    EXPECT_EQ(controller->getDefinedUnit(), &property->DefinedUnit.get());
}

TEST_F(EditPropertyTablePopupControllerTest, WhatIsTypedIsReadInTheUnitsOfTheUser)
{
    auto const property = lengths();
    show({property});
    EXPECT_TRUE(list->type(0, 0, "1.5"));
    EXPECT_TRUE(list->type(1, 1, "700 mm"));
    EXPECT_EQ(list->getText(1, 1), "0.7 m");
    EXPECT_THAT(results, IsEmpty());
    EXPECT_EQ(property->DefiningValues.get()->front(), real(1));
    EXPECT_THAT(close(), ElementsAre(Pair(real(1.5), length(0.25)), Pair(real(2), length(0.7))));
    EXPECT_FALSE(isOpen());
}

TEST_F(EditPropertyTablePopupControllerTest, TheEditorHasAllDigits)
{
    show({tableValue("Curve", {{real(1), length(1.0 / 3.0)}})});
    EXPECT_TRUE(list->beginEdit(0, 1));
    EXPECT_EQ(list->getEdit()->text, "0.3333333333333333");
    EXPECT_TRUE(list->cancelEdit());
    EXPECT_THAT(close(), ElementsAre(Pair(real(1), length(1.0 / 3.0))));
}

TEST_F(EditPropertyTablePopupControllerTest, ATextThatIsNoValueIsRefused)
{
    show({lengths()});
    EXPECT_FALSE(list->type(0, 0, "one"));
    EXPECT_FALSE(list->type(0, 1, "long"));
    EXPECT_THAT(close(), ElementsAre(Pair(real(1), length(0.25)), Pair(real(2), length(0.5))));
}

TEST_F(EditPropertyTablePopupControllerTest, ANegativeZeroIsStoredAsZero)
{
    show({lengths()});
    EXPECT_TRUE(list->type(0, 1, "-0 m"));
    EXPECT_FALSE(std::signbit(close()[0].second.valueAsDoubleGet().value_or(-1.0)));
}

TEST_F(EditPropertyTablePopupControllerTest, AnEmptyTableOpensWithAnEditOfItsFirstRow)
{
    show({emptyPath()});
    EXPECT_EQ(list->getRowCount(), 0u);
    ASSERT_TRUE(list->getEdit());
    EXPECT_THAT(list->getEdit()->items, ElementsAre(Item{0, 0}));
    EXPECT_EQ(list->getEdit()->text, "");
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(list->hasFocus());
    EXPECT_TRUE(qev::ui::WindowHandle::getFocusedWindow().isDescendantOf(list->getHandle()));
}

TEST_F(EditPropertyTablePopupControllerTest, EndingTheEditBelowTheLastRowAppendsOne)
{
    show({emptyPath()});
    EXPECT_TRUE(list->commitText("3 s"));
    EXPECT_EQ(list->getRowCount(), 1u);
    window.lock()->startLabelEdit(1, 1);
    EXPECT_TRUE(list->commitText("4 m"));
    EXPECT_THAT(close(), ElementsAre(Pair(seconds(3), length(0)), Pair(seconds(0), length(4))));
}

TEST_F(EditPropertyTablePopupControllerTest, ATextThatIsNoValueBelowTheLastRowAppendsARowWithoutIt)
{
    show({emptyPath()});
    EXPECT_FALSE(list->commitText("soon"));
    EXPECT_EQ(list->getRowCount(), 1u);
    EXPECT_THAT(close(), ElementsAre(Pair(seconds(0), length(0))));
}

TEST_F(EditPropertyTablePopupControllerTest, LeavingTheEditBelowTheLastRowAppendsNone)
{
    show({emptyPath()});
    EXPECT_TRUE(list->cancelEdit());
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_THAT(close(), IsEmpty());
}

TEST_F(EditPropertyTablePopupControllerTest, ARowOfUnknownTypesIsNotAppended)
{
    show({tableValue("Own", {})});
    list->commitText("3");
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_THAT(close(), IsEmpty());
}

TEST_F(EditPropertyTablePopupControllerTest, TheMenuDeletesAndInsertsRows)
{
    show({lengths()});
    chooseFromMenu(std::nullopt);
    EXPECT_TRUE(list->openContextMenu(1, 0));
    EXPECT_THAT(menuEntries, ElementsAre("Delete row", "Insert row above"));
    EXPECT_FALSE(list->openContextMenu(2, 0));
    EXPECT_EQ(list->getRowCount(), 2u);
}

TEST_F(EditPropertyTablePopupControllerTest, DeletesARow)
{
    show({lengths()});
    chooseFromMenu(0);
    EXPECT_TRUE(list->openContextMenu(0, 1));
    EXPECT_EQ(list->getRowCount(), 1u);
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(close(), ElementsAre(Pair(real(2), length(0.5))));
}

TEST_F(EditPropertyTablePopupControllerTest, DeletesTheLastRowThereIs)
{
    show({tableValue("Curve", {{real(1), real(2)}})});
    chooseFromMenu(0);
    EXPECT_TRUE(list->openContextMenu(0, 0));
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_THAT(close(), IsEmpty());
}

TEST_F(EditPropertyTablePopupControllerTest, InsertsARowAboveAndEditsIt)
{
    show({lengths()});
    chooseFromMenu(1);
    EXPECT_TRUE(list->openContextMenu(0, 1));
    EXPECT_EQ(list->getRowCount(), 3u);
    ASSERT_TRUE(list->getEdit());
    EXPECT_THAT(list->getEdit()->items, ElementsAre(Item{0, 0}));
    EXPECT_TRUE(list->commitText("7"));
    EXPECT_THAT(close(), ElementsAre(Pair(real(7), length(0)), Pair(real(1), length(0.25)),
                                     Pair(real(2), length(0.5))));
}

TEST_F(EditPropertyTablePopupControllerTest, InsertsNothingWhereTheTypesAreNotKnown)
{
    auto const property = tableValue("Own", {{real(1), real(2)}});
    show({property});
    property->DefiningValues = std::nullopt;
    chooseFromMenu(1);
    EXPECT_TRUE(list->openContextMenu(0, 0));
    EXPECT_EQ(list->getRowCount(), 1u);
    EXPECT_FALSE(list->getEdit());
}

TEST_F(EditPropertyTablePopupControllerTest, OtherCommandsAndPlacesDoNothing)
{
    show({lengths()});
    auto const control = window.lock();
    fireEvent(control->onContextMenuCommand, Item{0, 0}, 2);
    fireEvent(control->onContextMenuCommand, Item{2, 0}, 0);
    fireEvent(control->onContextMenuCommand, Item{2, 0}, 1);
    EXPECT_EQ(list->getRowCount(), 2u);
    fireEvent(control->onContextMenuCommand, Item{}, 0);
    EXPECT_EQ(list->getRowCount(), 1u);
    EXPECT_EQ(list->getText(0, 0), "2");
}

TEST_F(EditPropertyTablePopupControllerTest, AnyColumnButTheFirstIsTheDefinedValue)
{
    show({lengths()});
    auto const control = window.lock();
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{0, 5}), "0.25 m");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{}), "1");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{2, 0}), "");
}

TEST_F(EditPropertyTablePopupControllerTest, AnEditBeyondTheNextRowDoesNothing)
{
    show({lengths()});
    ListControl::LabelEditEndParams params;
    params.accepted = true;
    params.items = {{3, 0}};
    params.text = "5";
    fireEvent(window.lock()->onLabelEditEnd, params);
    EXPECT_THAT(close(), ElementsAre(Pair(real(1), length(0.25)), Pair(real(2), length(0.5))));
}

TEST_F(EditPropertyTablePopupControllerTest, TheCallbackMayEndThePopup)
{
    controller = std::make_unique<EditPropertyTablePopupController>(model.data(), Properties{lengths()}, "");
    controller->attachToControl(makePopup());
    std::string seen;
    controller->show([&, large = std::string(100, 'x')](Rows const& rows) {
        controller.reset();
        seen = std::to_string(rows.size()) + large.substr(98);
    });
    turnElsewhere();
    EXPECT_EQ(seen, "2xx");
    EXPECT_TRUE(window.expired());
}

TEST_F(EditPropertyTablePopupControllerTest, ReportsSeveralPropertiesAndHandsNoRowsOn)
{
    for (auto const& properties : {Properties{}, Properties{lengths(), lengths()}}) {
        results.clear();
        show(properties);
        expectPopupReport("Multi edit not supported yet.", className, className);
        EXPECT_EQ(list->getRowCount(), 0u);
        EXPECT_EQ(controller->getDefiningUnit(), nullptr);
        EXPECT_THAT(close(), IsEmpty());
    }
}

TEST_F(EditPropertyTablePopupControllerTest, ReportsANullProperty)
{
    show({nullptr});
    expectPopupReport("Objet was nullptr", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    list->commitText("3");
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_THAT(close(), IsEmpty());
}

TEST_F(EditPropertyTablePopupControllerTest, ReportsAnUnknownColumn)
{
    show({lengths()});
    EXPECT_EQ(headerText(2), "");
    expectPopupReport("Unknown column", className, "handleGetColumnHeaderString");
}

TEST_F(EditPropertyTablePopupControllerTest, ReportsThatThereIsNoControlAndKeepsNoCallback)
{
    controller = std::make_unique<EditPropertyTablePopupController>(model.data(), Properties{lengths()}, "");
    controller->show([this](Rows rows) { results.push_back(std::move(rows)); });
    expectPopupReport("Not attached to any control yet.", className, "show");

    controller->attachToControl(makePopup());
    window.lock()->show();
    turnElsewhere();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(results, IsEmpty());
}

} // namespace
