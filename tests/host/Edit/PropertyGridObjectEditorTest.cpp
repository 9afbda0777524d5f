#include "Edit/PropertyGridObjectEditor.h"

#include "../Ui/UiTest.h"
#include "Core/Id/Guid.h"
#include "ToyEditor.h"

namespace qev::test {
namespace {

using namespace ui;
using namespace ui::edit;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Id = object::PropertyId;
using Value = object::PropertyValue;
using Path = std::vector<std::string>;

/// The editor over toys, on the headless grid.
class PropertyGridObjectEditorTest : public UiTest
{
protected:
    PropertyGridObjectEditorTest()
        : control(createGrid())
        , grid(backend->getPropertyGrid(*control))
        , editor(PropertyGridObjectEditor::create(control, dialog, makeProgram()))
        , controller(std::make_shared<ToyController>(log))
    {
        fill(first);
    }

    EditorProgram makeProgram()
    {
        EditorProgram program;
        program.beginAction = [this](std::string const& name) {
            log.push_back("begin " + name);
            return std::shared_ptr<void>(this, [this](void*) { log.push_back("end"); });
        };
        program.regenerateObjects = [this] { log.push_back("regenerate"); };
        program.openReference = [this](std::string const& reference) { log.push_back("open " + reference); };
        program.goToObject = [this](Guid const& id) { log.push_back("go to " + id.toString()); };
        program.onReferenceChanged = [this] { ++referenceChanges; };
        return program;
    }

    static void fill(ToyShown& toy)
    {
        auto& values = toy.object->values;
        values[Id("Name")] = Value(std::string("Wall"));
        values[Id("Count")] = Value(3);
        values[Id("Width")] = Value(std::optional(0.3));
        values[Id("IsExternal")] = Value(std::optional(true));
        values[Id("Kind")] = Value(std::optional<std::string>("b"));
        toy.object->measures[Id("Width")] = "LengthMeasure";
        toy.object->mandatory.insert(Id("Name"));
        toy.edit->rows = {
            ToyEdit::group("Wall", {ToyEdit::leaf("Name"), ToyEdit::leaf("Count"), ToyEdit::leaf("Width"),
                                    ToyEdit::leaf("IsExternal"), ToyEdit::leaf("Kind")})};
    }

    void show(std::vector<ToyShown> const& toys)
    {
        ShownObjects objects;
        for (auto const& toy : toys)
            objects.push_back(toy.shown);
        editor->setObjects(objects, controller);
        log.clear();
    }
    [[nodiscard]] HeadlessPropertyGrid::Row row(std::string const& id) const
    {
        return editor->findRow(Id(id));
    }

    std::shared_ptr<PropertyGridControl> control;
    std::shared_ptr<HeadlessPropertyGrid> grid;
    std::vector<std::string> log;
    int referenceChanges = 0;
    std::shared_ptr<PropertyGridObjectEditor> editor;
    std::shared_ptr<ToyController> controller;
    ToyShown first;
    ToyShown second;
};

// --- One object ---

TEST_F(PropertyGridObjectEditorTest, EachKindOfValueHasItsRow)
{
    controller->choices[Id("Kind")] = {{"A", Value(std::string("a"))}, {"B", Value(std::string("b"))}};
    show({first});
    EXPECT_EQ(grid->dump(), R"(- Wall
    Name = Wall {text}
    Count = 3 {text}
    Width = 0.3 m {number}
    IsExternal [x] {check box}
    Kind = B {choice "" "A" "B"}
)");
    EXPECT_EQ(row("Name")->getState().description, "description of Name");
}

TEST_F(PropertyGridObjectEditorTest, WhatIsTypedIsWrittenInTheKindOfTheProperty)
{
    show({first});
    EXPECT_TRUE(grid->type(row("Name"), "Roof"));
    EXPECT_TRUE(grid->type(row("Count"), "12"));
    EXPECT_TRUE(grid->type(row("Width"), "25 cm"));
    EXPECT_TRUE(grid->clickCheckBox(row("IsExternal")));
    auto& values = first.object->values;
    EXPECT_EQ(values[Id("Name")], Value(std::string("Roof")));
    EXPECT_EQ(values[Id("Count")], Value(12));
    EXPECT_EQ(values[Id("Width")], Value(std::optional(0.25)));
    EXPECT_EQ(values[Id("IsExternal")], Value(std::optional(false)));
}

TEST_F(PropertyGridObjectEditorTest, AChoiceShowsTextsAndWritesValues)
{
    controller->choices[Id("Kind")] = {
        {"A", Value(std::string("a"))}, {"B", Value(std::string("b"))}, {"C", {}}};
    show({first});
    EXPECT_TRUE(grid->choose(row("Kind"), "A"));
    EXPECT_EQ(first.object->values[Id("Kind")], Value(std::optional<std::string>("a")));
    EXPECT_TRUE(grid->choose(row("Kind"), "C"));
    EXPECT_EQ(first.object->values[Id("Kind")], Value(std::optional<std::string>("C")));
    EXPECT_FALSE(grid->type(row("Kind"), "a"));
    EXPECT_TRUE(grid->clear(row("Kind")));
    EXPECT_EQ(first.object->values[Id("Kind")], Value(std::optional<std::string>()));
}

TEST_F(PropertyGridObjectEditorTest, OptionalValuesCanBeEmptied)
{
    show({first});
    EXPECT_TRUE(grid->clear(row("Width")));
    EXPECT_TRUE(grid->clear(row("IsExternal")));
    EXPECT_EQ(first.object->values[Id("Width")], Value(std::optional<double>()));
    EXPECT_EQ(first.object->values[Id("IsExternal")], Value(std::optional<bool>()));
    EXPECT_THAT(grid->dump(),
                HasSubstr("Width (not set) {number}\n    IsExternal [-] (not set) {check box}"));
}

TEST_F(PropertyGridObjectEditorTest, RefusedInputSaysWhatWasExpectedAndChangesNothing)
{
    first.object->forbidden = {"bad"};
    first.object->valueDescriptions[Id("Name")] = "A name of the street.";
    show({first});
    EXPECT_FALSE(grid->clear(row("Name")));
    EXPECT_EQ(grid->getMessage(), "This property cannot be empty.");
    EXPECT_FALSE(grid->type(row("Name"), "bad"));
    EXPECT_EQ(grid->getMessage(), "\"bad\" is not allowed for this property. A name of the street.");
    EXPECT_FALSE(grid->type(row("Count"), "2.5"));
    EXPECT_EQ(grid->getMessage(), "\"2.5\" is not a whole number that this property can take.");
    EXPECT_FALSE(grid->type(row("Width"), "wide"));
    EXPECT_THAT(grid->getMessage(), HasSubstr("\"wide\" is not a number"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Wall")));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PropertyGridObjectEditorTest, ANumberWithoutAValueIsANumberAllTheSame)
{
    first.object->values[Id("Width")] = Value();
    show({first});
    EXPECT_TRUE(grid->type(row("Width"), "2"));
    EXPECT_EQ(first.object->values[Id("Width")], Value(std::optional(2.0)));
}

TEST_F(PropertyGridObjectEditorTest, UnsignedNumbersAreReadAsSuch)
{
    first.object->values[Id("Count")] = Value(std::uint32_t(4000000000));
    show({first});
    EXPECT_FALSE(grid->type(row("Count"), "-1"));
    EXPECT_TRUE(grid->type(row("Count"), "4100000000"));
    EXPECT_EQ(first.object->values[Id("Count")], Value(std::uint32_t(4100000000)));
}

TEST_F(PropertyGridObjectEditorTest, SuggestedValuesAreOfferedBesideFreeInput)
{
    first.object->suggestions[Id("Name")] = {Value(std::string("North")), Value(std::string("South"))};
    show({first});
    EXPECT_TRUE(grid->choose(row("Name"), "South"));
    EXPECT_TRUE(grid->type(row("Name"), "Roof"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Roof")));
}

TEST_F(PropertyGridObjectEditorTest, WhatCannotBeEditedOpensNoEditor)
{
    first.object->readOnly = {Id("Name")};
    first.edit->disabled = {Id("Count")};
    show({first});
    EXPECT_FALSE(grid->type(row("Name"), "Roof"));
    EXPECT_FALSE(grid->type(row("Count"), "1"));
    EXPECT_THAT(grid->dump(), HasSubstr("Name = Wall {read-only}\n    Count = 3 {disabled}"));
    first.object->isReadOnlyObject = true;
    editor->updateView();
    EXPECT_FALSE(grid->clickCheckBox(row("IsExternal")));
    EXPECT_FALSE(grid->type(row("Width"), "1"));
}

TEST_F(PropertyGridObjectEditorTest, ColoursFixedTextsAndLabelsComeFromTheEditInterface)
{
    first.edit->textColours[Id("Name")] = {255, 1, 2, 3};
    first.edit->backgroundColours[Id("Name")] = {255, 4, 5, 6};
    auto& rows = first.edit->rows.front().children;
    rows.erase(rows.begin() + 2, rows.end());
    rows[1].fixedText = "always";
    rows[1].suffix = " so";
    rows[1].labelAndDescription.emplace("How many", "Of them");
    show({first});
    EXPECT_EQ(grid->dump(), "- Wall\n    Name = Wall {text, text #FF010203, #FF040506}\n"
                            "    How many = always so {read-only}\n");
    EXPECT_EQ(row("Count")->getState().description, "Of them");
}

// --- Around an edit ---

TEST_F(PropertyGridObjectEditorTest, AnEditIsToldInItsOrder)
{
    show({first});
    grid->type(row("Name"), "Roof");
    EXPECT_THAT(log, ElementsAre("begin Name", "changed Name", "regenerate", "changed, regenerated Name",
                                 "end", "updated Name"));
}

TEST_F(PropertyGridObjectEditorTest, WithoutRegenerationOnlyTheChangeIsTold)
{
    controller->action = ObjectPropertyEditControllerBase::RedrawProperty;
    show({first});
    grid->type(row("Name"), "Roof");
    EXPECT_THAT(log, ElementsAre("begin Name", "changed Name", "end", "updated Name"));
}

TEST_F(PropertyGridObjectEditorTest, ALocalValueIsResetByItsButton)
{
    first.object->globalValues[Id("Name")] = Value(std::string("Type"));
    show({first});
    EXPECT_THAT(grid->dump(), HasSubstr("Name = Wall {text, button \"reset\", local}"));
    EXPECT_TRUE(grid->pressButton(row("Name"), "reset"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Type")));
    EXPECT_THAT(log, ElementsAre("may reset Name", "begin Name", "reset Name", "regenerate",
                                 "reset, regenerated Name", "end"));
    EXPECT_THAT(grid->dump(), HasSubstr("Name = Type {text}"));
}

TEST_F(PropertyGridObjectEditorTest, AResetThatIsNotPermittedChangesNothing)
{
    first.object->globalValues[Id("Name")] = Value(std::string("Type"));
    first.edit->buttons[Id("Name")] = {"edit"};
    controller->permitsReset = false;
    show({first});
    EXPECT_TRUE(grid->pressButton(row("Name"), "reset"));
    EXPECT_TRUE(grid->pressButton(row("Name"), "edit"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Wall")));
    EXPECT_THAT(log, ElementsAre("may reset Name", "clicked Name edit"));
}

TEST_F(PropertyGridObjectEditorTest, TheSelectionOfTheGridIsFollowed)
{
    show({first});
    grid->select(row("Name"));
    grid->select(row("Count"));
    EXPECT_EQ(editor->getSelectedProperty(), Id("Count"));
    EXPECT_THAT(log, ElementsAre("selected Name", "deselected Name", "selected Count"));
    log.clear();
    first.edit->rows.front().children.erase(first.edit->rows.front().children.begin() + 1);
    editor->updateView();
    EXPECT_THAT(log, ElementsAre("deselected Count"));
    EXPECT_EQ(editor->getSelectedProperty(), std::nullopt);
}

TEST_F(PropertyGridObjectEditorTest, ButtonsAreClickedByTheirKeys)
{
    first.edit->buttons[Id("Wall")] = {""};
    first.edit->buttons[Id("Name")] = {"delete", "edit"};
    first.object->readOnly = {Id("Name")};
    show({first});
    EXPECT_EQ(row("Name")->getState().buttons[0].text, "Delete");
    EXPECT_EQ(row("Name")->getState().buttons[0].image, ObjectPropertyEditInterface::getDeleteButtonImage());
    EXPECT_TRUE(grid->pressButton(row("Name"), "edit"));
    EXPECT_TRUE(grid->pressButton(row("Wall"), ""));
    EXPECT_THAT(log, ElementsAre("clicked Name edit", "clicked Wall "));
}

TEST_F(PropertyGridObjectEditorTest, AClickMayShowOtherObjectsOrEndTheEditor)
{
    first.edit->buttons[Id("Name")] = {"edit"};
    show({first});
    controller->onClick = [&](Id const&) { editor->setObjects({}, nullptr); };
    EXPECT_TRUE(grid->pressButton(row("Name"), "edit"));
    EXPECT_EQ(grid->dump(), "");
    show({first});
    auto const name = row("Name");
    controller->onClick = [&](Id const&) { editor.reset(); };
    EXPECT_TRUE(grid->pressButton(name, "edit"));
    EXPECT_EQ(editor, nullptr);
    EXPECT_TRUE(grid->type(name, "nobody hears of it"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Wall")));
}

TEST_F(PropertyGridObjectEditorTest, AReloadReadsTheRowsAgainAndStaysAtTheProperty)
{
    show({first});
    first.edit->rows.push_back(
        ToyEdit::group("Sets", {ToyEdit::group("Sets.A", {ToyEdit::leaf("Sets.A.X")})}));
    auto* const reloading = dynamic_cast<ObjectPropertyEditController*>(editor->getControllerNonConst());
    ASSERT_NE(reloading, nullptr);
    reloading->reloadProperty(Id("Sets.A.X"));
    EXPECT_EQ(grid->getCurrentRow(), row("Sets.A.X"));
    first.edit->rows.back().children.clear();
    reloading->reloadProperty(Id("Sets.A.X"));
    EXPECT_EQ(row("Sets.A"), nullptr);
    EXPECT_EQ(grid->getCurrentRow(), row("Sets"));
    reloading->reloadProperty(Id("Unknown"));
    EXPECT_EQ(grid->getCurrentRow(), row("Sets"));
}

TEST_F(PropertyGridObjectEditorTest, RowsStayTheSameWhereOnlyValuesAreNew)
{
    show({first});
    auto const before = row("Name");
    first.object->values[Id("Name")] = Value(std::string("Roof"));
    editor->updateView();
    EXPECT_EQ(row("Name"), before);
    EXPECT_EQ(before->getState().text, "Roof");
}

TEST_F(PropertyGridObjectEditorTest, WhatIsFoldedStaysSoByIdWhateverObjectIsShown)
{
    auto const sets = ToyEdit::group("Sets", {ToyEdit::leaf("Sets.X")});
    first.edit->rows.front().children.push_back(sets);
    second.edit->rows = {ToyEdit::group("Slab", {sets})};
    show({first});
    grid->collapse(row("Sets"));
    show({second});
    EXPECT_EQ(grid->dump(), "- Slab\n  + Sets\n");
    grid->expand(row("Sets"));
    show({first});
    EXPECT_TRUE(grid->isExpanded(*row("Sets")));
}

// --- References ---

TEST_F(PropertyGridObjectEditorTest, AReferenceIsALinkThatClicksItsButton)
{
    first.object->references = {Id("Name")};
    first.edit->buttons[Id("Name")] = {""};
    show({first});
    EXPECT_TRUE(row("Name")->getState().isLink);
    EXPECT_TRUE(grid->followLink(row("Name")));
    EXPECT_THAT(log, ElementsAre("clicked Name "));
}

TEST_F(PropertyGridObjectEditorTest, TheOwnerOperationsReachTheProgram)
{
    auto const owner = std::static_pointer_cast<ObjectPropertyEditControllerOwnerInterface>(editor);
    owner->openExternalReference("plan.pdf");
    auto const id = Guid::generate();
    owner->goToObject(id);
    owner->onObjectsEdited();
    EXPECT_THAT(log, ElementsAre("open plan.pdf", "go to " + id.toString(), "regenerate"));
    EXPECT_EQ(owner->getPopupParentWindow(), dialog);
}

TEST_F(PropertyGridObjectEditorTest, TheSelectedReferenceCanBeReadAndOpened)
{
    editor->setSelectedReference("plan.pdf");
    editor->openSelectedReference();
    EXPECT_THAT(log, IsEmpty());
    editor->setReferenceActionEnabled(true);
    EXPECT_EQ(editor->getSelectedReference(), "plan.pdf");
    EXPECT_TRUE(editor->isReferenceActionEnabled());
    editor->openSelectedReference();
    EXPECT_THAT(log, ElementsAre("open plan.pdf"));
    editor->clearSelectedReference();
    EXPECT_EQ(editor->getSelectedReference(), std::nullopt);
    EXPECT_FALSE(editor->isReferenceActionEnabled());
    EXPECT_EQ(referenceChanges, 3);
}

// --- Several objects ---

TEST_F(PropertyGridObjectEditorTest, OfSeveralObjectsOnlyWhatAllHaveIsShown)
{
    fill(second);
    first.edit->rows.front().children.push_back(ToyEdit::leaf("OnlyFirst"));
    second.edit->rows = {ToyEdit::group(
        "Slab", {ToyEdit::leaf("Name"), ToyEdit::group("Count", {}), ToyEdit::leaf("IsExternal")})};
    second.object->values[Id("Name")] = Value(std::string("Slab"));
    show({first, second});
    EXPECT_EQ(grid->dump(), R"(- In all objects
    Name (varies) {text}
    IsExternal [x] {check box}
)");
}

TEST_F(PropertyGridObjectEditorTest, NothingIsWrittenToValuesThatDifferUnlessTyped)
{
    fill(second);
    second.object->values[Id("Name")] = Value(std::string("Slab"));
    show({first, second});
    EXPECT_EQ(PropertyGridEditing::getEditorText(*row("Name")), "");
    EXPECT_TRUE(grid->type(row("Name"), ""));
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(second.object->values[Id("Name")], Value(std::string("Slab")));
    EXPECT_TRUE(grid->type(row("Name"), "Both"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Both")));
    EXPECT_EQ(second.object->values[Id("Name")], Value(std::string("Both")));
}

TEST_F(PropertyGridObjectEditorTest, NumbersAndBoxesThatDifferAreClearedAndSetTogether)
{
    fill(second);
    second.object->values[Id("Width")] = Value(0.5);
    second.object->values[Id("IsExternal")] = Value(false);
    show({first, second});
    EXPECT_THAT(grid->dump(), HasSubstr("Width (varies) {number}\n    IsExternal [-] (varies) {check box}"));
    EXPECT_TRUE(grid->clickCheckBox(row("IsExternal")));
    EXPECT_EQ(second.object->values[Id("IsExternal")], Value(true));
    EXPECT_EQ(first.object->values[Id("IsExternal")], Value(std::optional(true)));
    EXPECT_TRUE(grid->clear(row("Width")));
    EXPECT_EQ(first.object->values[Id("Width")], Value(std::optional<double>()));
    EXPECT_EQ(second.object->values[Id("Width")], Value(std::optional<double>()));
}

TEST_F(PropertyGridObjectEditorTest, OneRefusalKeepsAllObjectsAsTheyAre)
{
    fill(second);
    second.object->forbidden = {"bad"};
    show({first, second});
    EXPECT_FALSE(grid->type(row("Name"), "bad"));
    EXPECT_EQ(first.object->values[Id("Name")], Value(std::string("Wall")));
}

TEST_F(PropertyGridObjectEditorTest, OneReadOnlyObjectMakesTheRowReadOnly)
{
    fill(second);
    second.object->isReadOnlyObject = true;
    show({first, second});
    EXPECT_FALSE(grid->type(row("Name"), "Both"));
    EXPECT_EQ(controller->getEditedObjects().size(), 2u);
    EXPECT_THAT(controller->getWritableObjects(), ElementsAre(first.shown));
    second.object->isReadOnlyObject = false;
    second.object->canBeEditedWithOthers = false;
    show({first, second});
    EXPECT_FALSE(grid->type(row("Name"), "Both"));
}

// --- Rows beyond the configuration ---

TEST_F(PropertyGridObjectEditorTest, DynamicRowsStandBelowTheRowsTheyBelongTo)
{
    auto const named = [](std::string const& suffix) {
        return ToyEdit::group("Instance.Classifications",
                              {ToyEdit::leaf("Instance.Classifications.Uniclass 2.0" + suffix)});
    };
    auto& rows = first.edit->rows.front().children;
    rows.erase(rows.begin() + 1, rows.end());
    first.edit->rows.front().children.push_back(
        ToyEdit::group("Classifications", {ToyEdit::leaf("Classifications.Uniclass 2.0")}));
    first.edit->dynamicRows = {{"Classifications", {named("")}},
                               {"Classifications.Identification", {named(".Identification")}},
                               {"Classifications.Name", {named(".Name")}}};
    first.edit->buttons[Id("Classifications")] = {""};
    first.edit->buttons[Id("Classifications.Uniclass 2.0")] = {"delete", "edit"};
    first.object->values[Id("Classifications.Uniclass 2.0.Name")] = Value(std::string("Walls"));
    show({first});
    EXPECT_EQ(grid->dump(), R"(- Wall
    Name = Wall {text}
  - Classifications {button ""}
    - 0 (not set) {text, button "delete", button "edit"}
        Identification (not set) {text}
        Name = Walls {text}
)");
    grid->pressButton(row("Classifications.Uniclass 2.0"), "delete");
    EXPECT_THAT(log, ElementsAre("clicked Classifications.Uniclass 2.0 delete"));
}

TEST_F(PropertyGridObjectEditorTest, DynamicRowsWithoutAPlaceStandAtTheEndUnlessUnwanted)
{
    auto& rows = first.edit->rows.front().children;
    rows.erase(rows.begin() + 1, rows.end());
    first.edit->dynamicRows = {
        {"More", {ToyEdit::group("Instance.More", {ToyEdit::leaf("Instance.More.A")})}},
        {"Other", {ToyEdit::leaf("Instance.Other")}}};
    first.edit->unwanted = {Id("Other")};
    show({first});
    EXPECT_EQ(grid->dump(), "- Wall\n    Name = Wall {text}\n- More\n    A (not set) {text}\n");
}

TEST_F(PropertyGridObjectEditorTest, AnObjectThatHasNoRowsOnTheLevelShowsNone)
{
    first.edit->appliesAtLevel = false;
    show({first});
    EXPECT_EQ(grid->dump(), "");
}

} // namespace
} // namespace qev::test
