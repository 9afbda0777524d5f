#include "UI/FoundationClasses/Controllers/AddPropertyPopupController.h"

#include "library/kit/TranslationScope.h"
#include "PopupFixture.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::ui::AddPropertyPopupController;
using ifc::def::xml::Def;
using testing::ElementsAre;
using testing::IsEmpty;
using ui::ListControl;

constexpr auto className = "AddPropertyPopupController";
constexpr attr::Colour grey{255, 180, 180, 180};

class AddPropertyPopupControllerTest : public PopupFixture
{
protected:
    AddPropertyPopupControllerTest()
        : schema(toySchemaWith(SetBuilder("Pset_Toy")
                                   .single("Colour", "IfcLabel")
                                   .reference("Owner")
                                   .single("Weight", "IfcMassMeasure")
                                   .take(),
                               SetBuilder("Pset_Owned").reference("Owner").take(), everyQuantity("Qto_Toy")))
    {
    }

    void show(AddPropertyPopupController::Sets sets)
    {
        show(std::make_unique<AddPropertyPopupController>(std::move(sets), schema.get()));
    }
    void show(std::unique_ptr<AddPropertyPopupController> shown)
    {
        controller = std::move(shown);
        controller->attachToControl(makePopup());
        controller->show([this](std::vector<Def const*> const& definitions) {
            auto& names = chosen.emplace_back();
            for (auto const* const definition : definitions)
                names.push_back(definition->name);
        });
    }
    [[nodiscard]] AddPropertyPopupController::Sets sets(std::vector<std::string> const& setNames)
    {
        AddPropertyPopupController::Sets result;
        for (auto const& name : setNames)
            result.push_back(model.addSet(model.wall("W"), name));
        return result;
    }
    [[nodiscard]] ifc::def::xml::SetDef const& definition(std::string const& name) const
    {
        return *schema->pXmlSetFromName(name);
    }

    std::unique_ptr<ifc::def::SchemaPset> schema;
    std::unique_ptr<AddPropertyPopupController> controller;
    std::vector<std::vector<std::string>> chosen;
};

TEST_F(AddPropertyPopupControllerTest, ListsWhatTheSetLacksInTheOrderOfItsDefinition)
{
    auto const set = model.addSet(model.wall("W1"), "Pset_Toy", {{"Weight", real(1)}});
    show({set});
    EXPECT_EQ(list->dump(), "  Property | Description\n"
                            "  Colour | \n"
                            "  Owner (not supported) |  (not supported)\n"
                            "  Add all properties | \n");
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPropertyPopupControllerTest, ListsWhatOneOfSeveralSetsLacks)
{
    auto const first =
        model.addSet(model.wall("W1"), "Pset_Toy", {{"Weight", real(1)}, {"Colour", label("red")}});
    auto const second = model.addSet(model.wall("W2"), "Pset_Toy", {{"Weight", real(2)}});
    show({first, second});
    EXPECT_EQ(list->getText(0, 0), "Colour");
    EXPECT_EQ(list->getRowCount(), 3u);
}

TEST_F(AddPropertyPopupControllerTest, ASetWithAllItsPropertiesHasNoRows)
{
    auto const set = model.addQuantities(
        model.wall("W1"), "Qto_Toy",
        {{"Area", 1}, {"Count", 1}, {"Length", 1}, {"Time", 1}, {"Volume", 1}, {"Weight", 1}});
    show({set});
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_EQ(list->getColumnCount(), 2u);
    EXPECT_TRUE(isOpen());
    fireEvent(window.lock()->onItemActivated, Item{0, 0});
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AddPropertyPopupControllerTest, ListsTheQuantitiesThatASetLacks)
{
    show({model.addQuantities(model.wall("W1"), "Qto_Toy", {{"Area", 1}, {"Length", 2}})});
    EXPECT_EQ(list->getText(0, 0), "Count");
    EXPECT_EQ(list->getText(1, 0), "Time");
    EXPECT_EQ(list->getRowCount(), 5u);
}

TEST_F(AddPropertyPopupControllerTest, ASetOfAnotherKindLacksEverything)
{
    auto const full =
        model.addSet(model.wall("W1"), "Pset_Toy", {{"Colour", label("red")}, {"Weight", real(1)}});
    show({full, model.add<fc::core::kernel::FcPropertySet>("Pset_Toy")});
    EXPECT_EQ(list->getRowCount(), 4u);
    show({full, model.add<fc::domain::architecture::FcDoorLiningProperties>("Pset_Toy")});
    EXPECT_EQ(list->getRowCount(), 4u);
}

TEST_F(AddPropertyPopupControllerTest, ANewSetOffersAllThatItsDefinitionHas)
{
    auto fresh = std::make_unique<AddPropertyPopupController>();
    fresh->setPsetName("Pset_Toy");
    fresh->fillItems(definition("Pset_Toy"));
    show(std::move(fresh));
    EXPECT_EQ(list->getRowCount(), 4u);
    EXPECT_EQ(list->getText(0, 0), "Colour");
    EXPECT_EQ(controller->getPsetName(), "Pset_Toy");
}

TEST_F(AddPropertyPopupControllerTest, TextsAreLookedUpUnderTheNameOfTheSet)
{
    TranslationScope texts;
    texts.add("Pset_Toy.Colour", "Farbe");
    texts.add("Colour_Description", "Wie es aussieht");
    show(sets({"Pset_Toy"}));
    EXPECT_EQ(list->getText(0, 0), "Farbe");
    EXPECT_EQ(list->getText(0, 1), "Wie es aussieht");
}

TEST_F(AddPropertyPopupControllerTest, TheRowForAllIsEmphasisedAndUnsupportedOnesAreGrey)
{
    show(sets({"Pset_Toy"}));
    EXPECT_EQ(list->getStyle(0, 0), ListControl::ItemStyle());
    EXPECT_EQ(list->getStyle(1, 0), (ListControl::ItemStyle{grey, 0}));
    EXPECT_EQ(list->getStyle(1, 1), (ListControl::ItemStyle{grey, 0}));
    EXPECT_EQ(list->getStyle(3, 0), (ListControl::ItemStyle{std::nullopt, ListControl::ItemStyle::Emphasis}));
    EXPECT_EQ(fireEvent(window.lock()->onGetItemStyle, Item{4, 0}), ListControl::ItemStyle());
}

TEST_F(AddPropertyPopupControllerTest, ARowThatIsOpenedHandsItsDefinitionOn)
{
    show(sets({"Pset_Toy"}));
    EXPECT_TRUE(list->activate(2, 0));
    EXPECT_THAT(chosen, ElementsAre(ElementsAre("Weight")));
}

TEST_F(AddPropertyPopupControllerTest, AnUnsupportedRowCannotBeChosen)
{
    show(sets({"Pset_Toy"}));
    EXPECT_TRUE(list->activate(1, 0));
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AddPropertyPopupControllerTest, TheLastRowHandsOnAllThatIsSupported)
{
    show(sets({"Pset_Toy"}));
    EXPECT_TRUE(list->activate(3, 0));
    EXPECT_THAT(chosen, ElementsAre(ElementsAre("Colour", "Weight")));
}

TEST_F(AddPropertyPopupControllerTest, TheLastRowHandsOnNothingWhereNothingIsSupported)
{
    show(sets({"Pset_Owned"}));
    EXPECT_TRUE(list->activate(1, 0));
    EXPECT_THAT(chosen, ElementsAre(IsEmpty()));
}

TEST_F(AddPropertyPopupControllerTest, AnAbsentRowIsTheFirstAndARowPastTheEndIsNone)
{
    show(sets({"Pset_Toy"}));
    auto const control = window.lock();
    fireEvent(control->onItemActivated, Item{});
    fireEvent(control->onItemActivated, Item{4, 0});
    EXPECT_THAT(chosen, ElementsAre(ElementsAre("Colour")));
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{}), "Colour");
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{4, 0}), "");
}

TEST_F(AddPropertyPopupControllerTest, WithoutACallbackNothingHappens)
{
    controller = std::make_unique<AddPropertyPopupController>(sets({"Pset_Toy"}), schema.get());
    controller->attachToControl(makePopup());
    controller->show(nullptr);
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_TRUE(list->activate(3, 0));
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPropertyPopupControllerTest, TheCallbackMayEndThePopup)
{
    controller = std::make_unique<AddPropertyPopupController>(sets({"Pset_Toy"}), schema.get());
    controller->attachToControl(makePopup());
    std::string seen;
    controller->show([&, large = std::string(100, 'x')](std::vector<Def const*> const& definitions) {
        seen = definitions.front()->name + large.substr(98);
        controller.reset();
    });
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_EQ(seen, "Colourxx");
    EXPECT_TRUE(window.expired());
}

TEST_F(AddPropertyPopupControllerTest, SetsWithoutANameHaveNoRows)
{
    show(AddPropertyPopupController::Sets{});
    EXPECT_EQ(list->getRowCount(), 0u);
    auto const unnamed = sets({"Pset_Toy"});
    unnamed.front()->Name = std::nullopt;
    show(unnamed);
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_EQ(controller->getPsetName(), "");
    auto const behindUnnamed = sets({"Pset_Toy", "Pset_Toy"});
    behindUnnamed.front()->Name = std::nullopt;
    show(behindUnnamed);
    EXPECT_EQ(list->getRowCount(), 0u);
}

TEST_F(AddPropertyPopupControllerTest, ReportsSetsOfSeveralNames)
{
    show(sets({"Pset_Toy", "Pset_Toy", "Pset_Owned"}));
    expectPopupReport("Psets are of different types...", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    auto const unnamed = sets({"Pset_Toy", "Pset_Toy"});
    unnamed.back()->Name = std::nullopt;
    show(unnamed);
    expectPopupReport("Psets are of different types...", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
}

TEST_F(AddPropertyPopupControllerTest, ReportsAMissingSchema)
{
    show(std::make_unique<AddPropertyPopupController>(sets({"Pset_Toy"}), nullptr));
    expectPopupReport("Could not load ifc schema", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
}

TEST_F(AddPropertyPopupControllerTest, ReportsASetThatTheStandardDoesNotKnow)
{
    show(std::make_unique<AddPropertyPopupController>(sets({"Own"})));
    expectPopupReport("Unknown pset", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPropertyPopupControllerTest, TheStandardSaysWhatAWallLacks)
{
    show(std::make_unique<AddPropertyPopupController>(AddPropertyPopupController::Sets{
        model.addSet(model.wall("W1"), "Pset_WallCommon", {{"Reference", identifier("R")}})}));
    EXPECT_EQ(list->getText(0, 0), "Status");
    EXPECT_EQ(list->getText(list->getRowCount() - 1, 0), "Add all properties");
}

TEST_F(AddPropertyPopupControllerTest, ReportsUnknownColumns)
{
    show(sets({"Pset_Toy"}));
    EXPECT_EQ(headerText(2), "");
    expectPopupReport("Unknown column", className, "handleGetColumnHeaderString");
    EXPECT_EQ(list->getText(0, 2), "");
    expectPopupReport("Unknown column", "PopupLocalization", "getLocalizedItemString");
    EXPECT_EQ(list->getText(3, 2), "");
}

TEST_F(AddPropertyPopupControllerTest, ReportsThatThereIsNoControlAndKeepsNoCallback)
{
    controller = std::make_unique<AddPropertyPopupController>(sets({"Pset_Toy"}), schema.get());
    controller->show([this](std::vector<Def const*> const&) { chosen.emplace_back(); });
    expectPopupReport("Not attached to any control yet.", className, "show");

    controller->attachToControl(makePopup());
    window.lock()->show();
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_THAT(chosen, IsEmpty());
}

} // namespace
