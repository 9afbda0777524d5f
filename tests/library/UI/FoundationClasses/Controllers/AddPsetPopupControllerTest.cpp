#include "UI/FoundationClasses/Controllers/AddPsetPopupController.h"

#include "Format/Ifc/Schema/SchemaLoader.h"
#include "library/kit/TranslationScope.h"
#include "PopupFixture.h"

namespace {

using namespace qev;
using namespace qev::test;
using fc::ui::AddPsetPopupController;
using ifc::def::xml::SetDef;
using ifc::def::xml::TemplateType;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr auto className = "AddPsetPopupController";

std::unique_ptr<ifc::def::pset::PropertySetDef>
setFor(std::string const& name, std::vector<std::pair<std::string, std::string>> const& classes,
       TemplateType templateType = TemplateType::NotDefined)
{
    SetBuilder builder(name);
    for (auto const& [applicable, predefinedType] : classes)
        builder.applicableTo(applicable, predefinedType);
    auto set = builder.take();
    set->templateType = templateType;
    return set;
}

class AddPsetPopupControllerTest : public PopupFixture
{
protected:
    void show(Model::Objects objects)
    {
        makeController(std::move(objects), ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1"));
    }
    template <class... Sets>
    void show(Model::Objects objects, std::unique_ptr<Sets>... sets)
    {
        schema = toySchemaWith(std::move(sets)...);
        makeController(std::move(objects), schema.get());
    }
    void makeController(Model::Objects objects, ifc::def::SchemaPset const* shownSchema)
    {
        controller = std::make_unique<AddPsetPopupController>(std::move(objects), shownSchema);
        controller->attachToControl(makePopup());
        controller->show([this](SetDef const& set) { chosen.push_back(set.name); });
    }
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (std::size_t row = 0; row < list->getRowCount(); ++row)
            result.push_back(list->getText(row, 0));
        return result;
    }

    std::unique_ptr<ifc::def::SchemaPset> schema;
    std::unique_ptr<AddPsetPopupController> controller;
    std::vector<std::string> chosen;
};

TEST_F(AddPsetPopupControllerTest, ListsTheSetsOfTheStandardForAWall)
{
    AddPsetPopupController standard({model.wall("W1")});
    standard.attachToControl(makePopup());
    EXPECT_THAT(names(), Contains("Pset_WallCommon"));
    EXPECT_THAT(names(), Contains("Qto_WallBaseQuantities"));
    EXPECT_THAT(names(), Not(Contains("Pset_DoorCommon")));
}

TEST_F(AddPsetPopupControllerTest, HasAColumnOfNamesAndOneOfDescriptions)
{
    show({model.wall("W1")}, SetBuilder("Pset_Toy").description("What a toy has").take());
    EXPECT_EQ(list->dump(), "  Property set | Description\n"
                            "  Pset_Toy | What a toy has\n");
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(AddPsetPopupControllerTest, TextsAreLookedUpUnderTheNameAlone)
{
    TranslationScope texts;
    texts.add("Pset_Toy", "Spielzeug");
    texts.add("Pset_Toy_Description", "Was es hat");
    show({model.wall("W1")}, setFor("Pset_Toy", {}));
    EXPECT_EQ(list->getText(0, 0), "Spielzeug");
    EXPECT_EQ(list->getText(0, 1), "Was es hat");
}

TEST_F(AddPsetPopupControllerTest, SetsOfTheStandardStandBeforeOthersAndThenByName)
{
    show({model.wall("W1")}, setFor("A_Own", {}), setFor("Qto_B", {}), setFor("Pset_C", {}),
         setFor("Pset_A", {}), setFor("B_Own", {}));
    EXPECT_THAT(names(), ElementsAre("Pset_A", "Pset_C", "Qto_B", "A_Own", "B_Own"));
}

TEST_F(AddPsetPopupControllerTest, ASetAppliesToItsClassesAndWhatDerivesFromThem)
{
    show({model.wall("W1")}, setFor("Pset_Door", {{"IfcDoor", ""}}),
         setFor("Pset_Element", {{"IfcElement", ""}}),
         setFor("Pset_Wall", {{"IfcDoor", ""}, {"IfcWall", ""}}),
         setFor("Pset_WallStandardCase", {{"IfcWallStandardCase", ""}}));
    EXPECT_THAT(names(), ElementsAre("Pset_Element", "Pset_Wall"));
}

TEST_F(AddPsetPopupControllerTest, AClassOfTypesCountsForItsOccurrencesAndTheReverse)
{
    auto const sets = [] {
        return std::pair(setFor("Pset_Object", {{"IfcTypeObject", ""}}),
                         setFor("Pset_Wall", {{"IfcWallType", ""}}));
    };
    auto [first, second] = sets();
    show({model.wall("W1")}, std::move(first), std::move(second));
    EXPECT_THAT(names(), ElementsAre("Pset_Object", "Pset_Wall"));

    show({model.wallType("T1")}, setFor("Pset_Object", {{"IfcObject", ""}}),
         setFor("Pset_Wall", {{"IfcWall", ""}}));
    EXPECT_THAT(names(), ElementsAre("Pset_Object", "Pset_Wall"));
}

TEST_F(AddPsetPopupControllerTest, SeveralObjectsGetWhatAppliesToAllOfThem)
{
    auto const all = [&](Model::Objects objects) {
        show(std::move(objects), setFor("Pset_Door", {{"IfcDoor", ""}}),
             setFor("Pset_Element", {{"IfcElement", ""}}), setFor("Pset_Product", {{"IfcProduct", ""}}),
             setFor("Pset_Wall", {{"IfcWall", ""}}));
        return names();
    };
    EXPECT_THAT(all({model.wall("W1"), model.wall("W2")}),
                ElementsAre("Pset_Element", "Pset_Product", "Pset_Wall"));
    EXPECT_THAT(all({model.wall("W3"), model.door("D1")}), ElementsAre("Pset_Element", "Pset_Product"));
    EXPECT_THAT(all({model.wall("W4"), model.door("D2"), model.space("S1")}), ElementsAre("Pset_Product"));
}

TEST_F(AddPsetPopupControllerTest, ASetThatAllObjectsHaveIsNotOffered)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    model.addSet(first, "Pset_A");
    model.addSet(second, "Pset_A");
    model.addSet(first, "Pset_B");
    show({first, second}, setFor("Pset_A", {}), setFor("Pset_B", {}));
    EXPECT_THAT(names(), ElementsAre("Pset_B"));
    show({first}, setFor("Pset_A", {}), setFor("Pset_B", {}));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AddPsetPopupControllerTest, ASetOfQuantitiesThatAllObjectsHaveIsNotOffered)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    model.addQuantities(first, "Qto_A");
    model.addQuantities(second, "Qto_A");
    model.addQuantities(first, "Qto_B");
    show({first, second}, setFor("Qto_A", {}), setFor("Qto_B", {}));
    EXPECT_THAT(names(), ElementsAre("Qto_B"));
    show({first}, setFor("Qto_A", {}), setFor("Qto_B", {}));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AddPsetPopupControllerTest, ASetForAPredefinedTypeIsForObjectsOfThatTypeAlone)
{
    auto const wall = model.wall("W1");
    auto const names = [&] {
        show({wall}, setFor("Pset_All", {{"IfcWall", ""}}), setFor("Pset_Parapet", {{"IfcWall", "PARAPET"}}));
        return this->names();
    };
    EXPECT_THAT(names(), ElementsAre("Pset_All"));
    wall->PredefinedType = fc::FcWallTypeEnum::PARAPET;
    EXPECT_THAT(names(), ElementsAre("Pset_All", "Pset_Parapet"));
    wall->PredefinedType = fc::FcWallTypeEnum::SHEAR;
    EXPECT_THAT(names(), ElementsAre("Pset_All"));
}

TEST_F(AddPsetPopupControllerTest, ThePredefinedTypeOfTheTypeObjectCountsForAnObjectWithoutOne)
{
    auto const wall = model.wall("W1");
    auto const type = model.wallType("T1");
    type->PredefinedType = fc::FcWallTypeEnum::PARAPET;
    model.assignType(type, {wall});
    auto const names = [&] {
        show({wall}, setFor("Pset_Parapet", {{"IfcWall", "PARAPET"}}));
        return this->names();
    };
    EXPECT_THAT(names(), ElementsAre("Pset_Parapet"));
    wall->PredefinedType = fc::FcWallTypeEnum::SHEAR;
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(AddPsetPopupControllerTest, ObjectsOfSeveralPredefinedTypesGetWhatIsForAll)
{
    auto const first = model.wall("W1");
    auto const second = model.wall("W2");
    first->PredefinedType = fc::FcWallTypeEnum::PARAPET;
    auto const names = [&](Model::Objects objects) {
        show(std::move(objects), setFor("Pset_All", {{"IfcWall", ""}}),
             setFor("Pset_Parapet", {{"IfcWall", "PARAPET"}}));
        return this->names();
    };
    EXPECT_THAT(names({first, second}), ElementsAre("Pset_All"));
    EXPECT_THAT(names({second, first}), ElementsAre("Pset_All"));
    second->PredefinedType = fc::FcWallTypeEnum::SHEAR;
    EXPECT_THAT(names({first, second}), ElementsAre("Pset_All"));
    second->PredefinedType = fc::FcWallTypeEnum::PARAPET;
    EXPECT_THAT(names({first, second}), ElementsAre("Pset_All", "Pset_Parapet"));
}

TEST_F(AddPsetPopupControllerTest, TypesAndOccurrencesHaveSetsOfTheirOwn)
{
    auto const names = [&](Model::Object object) {
        show({std::move(object)}, setFor("Pset_0", {}, TemplateType::PsetTypeDrivenOnly),
             setFor("Pset_1", {}, TemplateType::PsetTypeDrivenOverride),
             setFor("Pset_2", {}, TemplateType::PsetOccurrenceDriven),
             setFor("Pset_3", {}, TemplateType::PsetPerformanceDriven),
             setFor("Pset_4", {}, TemplateType::QtoTypeDrivenOnly),
             setFor("Pset_5", {}, TemplateType::QtoTypeDrivenOverride),
             setFor("Pset_6", {}, TemplateType::QtoOccurrenceDriven), setFor("Pset_7", {}));
        return this->names();
    };
    EXPECT_THAT(names(model.wall("W1")),
                ElementsAre("Pset_1", "Pset_2", "Pset_3", "Pset_5", "Pset_6", "Pset_7"));
    EXPECT_THAT(names(model.wallType("T1")),
                ElementsAre("Pset_0", "Pset_1", "Pset_3", "Pset_4", "Pset_5", "Pset_7"));
}

TEST_F(AddPsetPopupControllerTest, ARowThatIsOpenedHandsItsDefinitionOn)
{
    show({model.wall("W1")}, setFor("Pset_A", {}), setFor("Pset_B", {}));
    EXPECT_TRUE(list->activate(1, 0));
    EXPECT_TRUE(list->activate(0, 1));
    EXPECT_THAT(chosen, ElementsAre("Pset_B", "Pset_A"));
}

TEST_F(AddPsetPopupControllerTest, AnAbsentRowIsTheFirstAndARowPastTheEndIsNone)
{
    show({model.wall("W1")}, setFor("Pset_A", {}), setFor("Pset_B", {}));
    auto const control = window.lock();
    fireEvent(control->onItemActivated, Item{});
    fireEvent(control->onItemActivated, Item{2, 0});
    EXPECT_THAT(chosen, ElementsAre("Pset_A"));
    EXPECT_EQ(fireEvent(control->onGetItemText, Item{2, 0}), "");
}

TEST_F(AddPsetPopupControllerTest, WithoutACallbackNothingHappens)
{
    schema = toySchemaWith(setFor("Pset_A", {}));
    controller = std::make_unique<AddPsetPopupController>(Model::Objects{model.wall("W1")}, schema.get());
    controller->attachToControl(makePopup());
    controller->show(nullptr);
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPsetPopupControllerTest, TheCallbackMayEndThePopup)
{
    schema = toySchemaWith(setFor("Pset_A", {}));
    controller = std::make_unique<AddPsetPopupController>(Model::Objects{model.wall("W1")}, schema.get());
    controller->attachToControl(makePopup());
    controller->show([this, large = std::string(100, 'x')](SetDef const& set) {
        chosen.push_back(set.name + large.substr(98));
        controller.reset();
    });
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_THAT(chosen, ElementsAre("Pset_Axx"));
    EXPECT_TRUE(window.expired());
}

TEST_F(AddPsetPopupControllerTest, WithoutObjectsThereAreNoRows)
{
    show({});
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_EQ(list->getColumnCount(), 2u);
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPsetPopupControllerTest, ReportsAnUnknownColumn)
{
    show({model.wall("W1")}, setFor("Pset_A", {}));
    EXPECT_EQ(headerText(2), "");
    expectPopupReport("Unknown column", className, "handleGetColumnHeaderString");
}

TEST_F(AddPsetPopupControllerTest, ReportsAMissingSchemaAndHasNoRows)
{
    makeController({model.wall("W1")}, nullptr);
    expectPopupReport("Could not load ifc schema", className, className);
    EXPECT_EQ(list->getRowCount(), 0u);
    EXPECT_TRUE(isOpen());
}

TEST_F(AddPsetPopupControllerTest, ReportsThatThereIsNoControlAndKeepsNoCallback)
{
    schema = toySchemaWith(setFor("Pset_A", {}));
    controller = std::make_unique<AddPsetPopupController>(Model::Objects{model.wall("W1")}, schema.get());
    controller->show([this](SetDef const& set) { chosen.push_back(set.name); });
    expectPopupReport("Not attached to any control yet.", className, "show");

    controller->attachToControl(makePopup());
    window.lock()->show();
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AddPsetPopupControllerTest, APopupWithoutAListIsNone)
{
    controller = std::make_unique<AddPsetPopupController>(Model::Objects{model.wall("W1")});
    controller->attachToControl(nullptr);
    controller->attachToControl(std::make_unique<fc::ui::ListPopup::Control>("Popup"));
    controller->show(nullptr);
    expectPopupReport("Not attached to any control yet.", className, "show");
}

TEST_F(AddPsetPopupControllerTest, TheHandlersEndWithTheController)
{
    show({model.wall("W1")}, setFor("Pset_A", {}));
    auto const control = window.lock();
    controller.reset();
    EXPECT_EQ(control->onGetItemText.handlerCount(), 0u);
    EXPECT_EQ(control->onItemActivated.handlerCount(), 0u);
    EXPECT_FALSE(control->hasInterface());
}

} // namespace
