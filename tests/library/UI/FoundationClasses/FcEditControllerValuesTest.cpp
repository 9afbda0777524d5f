#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"
#include "EditControllerTest.h"
#include "Ui/Window/ProgressBarInterface.h"
#include "Ui/Window/Window.h"
#include "Ui/Window/WindowInterface.h"
#include "Ui/WindowBackend.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcPropertySet;
using fc::core::kernel::FcRelAssociatesDocument;
using fc::resource::externalreference::FcDocumentReference;
using fc::resource::property::FcPropertyBoundedValue;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::resource::property::FcPropertyListValue;
using fc::resource::property::FcPropertyTableValue;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr char notOfType[] = "Unexpected object type in selection set.";
constexpr char notOfTypePlace[] = "getFcObjectsBeingEdited::<lambda_1>::operator ()";

/// Two walls with a set of one property of each kind.
class EditControllerValues : public EditControllerTest
{
protected:
    struct Wall
    {
        std::shared_ptr<fc::shared::sharedbldgelements::FcWall> object;
        std::shared_ptr<FcPropertyEnumeratedValue> status =
            enumeratedValue("Status", {label("NEW")}, {label("NEW"), label("OLD")});
        std::shared_ptr<FcPropertyBoundedValue> bounds = boundedValue("Bounded", real(1), real(2), FcValue());
        std::shared_ptr<FcPropertyListValue> list = listValue("List", {label("a")});
        std::shared_ptr<FcPropertyTableValue> table =
            tableValue("Table", {{real(1), label("one")}, {real(2), label("two")}});
    };

    Wall wallWithProperties(std::string const& name)
    {
        Wall wall{model.wall(name)};
        auto const set = model.addSet(wall.object, "Own");
        set->HasProperties.addProperty(wall.status);
        set->HasProperties.addProperty(wall.bounds);
        set->HasProperties.addProperty(wall.list);
        set->HasProperties.addProperty(wall.table);
        return wall;
    }
    template <class T>
    [[nodiscard]] std::size_t countOf() const
    {
        return model.data()->countFromId(T::idFirst, T::idLast);
    }

    Wall first = wallWithProperties("W1");
    Wall second = wallWithProperties("W2");
};

// --- Documents --------------------------------------------------------------------------------------

TEST_F(EditControllerValues, AddsOneDocumentForAllObjects)
{
    edit({second.object, first.object});
    click("Documents", "whatever");
    EXPECT_EQ(log->entries, changeAt("Documents"));
    ASSERT_EQ(countOf<FcRelAssociatesDocument>(), 1u);
    ASSERT_EQ(countOf<FcDocumentReference>(), 1u);
    auto const relation = *model.data()->entities<FcRelAssociatesDocument>().begin();
    EXPECT_FALSE(relation->getGuid().isNull());
    EXPECT_EQ(relation->RelatingDocument->entity(), *model.data()->entities<FcDocumentReference>().begin());
    auto const& objects = relation->RelatedObjects.get();
    ASSERT_EQ(objects.size(), 2u);
    EXPECT_EQ(objects[0].entity(), second.object);
    EXPECT_EQ(objects[1].entity(), first.object);
    EXPECT_EQ(openList(), nullptr);
    model.data()->changes().undo();
    EXPECT_EQ(countOf<FcRelAssociatesDocument>() + countOf<FcDocumentReference>(), 0u);
}

TEST_F(EditControllerValues, AddsADocumentOfNoObjectWhereOneCannotHaveIt)
{
    edit({first.object, first.status});
    click("Documents");
    expectControllerReport(notOfType, notOfTypePlace);
    EXPECT_EQ(log->entries, changeAt("Documents"));
    ASSERT_EQ(countOf<FcRelAssociatesDocument>(), 1u);
    auto const relation = *model.data()->entities<FcRelAssociatesDocument>().begin();
    EXPECT_THAT(relation->RelatedObjects.get(), IsEmpty());
    EXPECT_EQ(relation->RelatingDocument->entity(), *model.data()->entities<FcDocumentReference>().begin());
    EXPECT_THAT(first.object->HasAssociations(), IsEmpty());
}

// --- Lists and deletions ----------------------------------------------------------------------------

TEST_F(EditControllerValues, AppendsAValueToEachList)
{
    edit({first.object, second.object});
    click("PropertySets.Own.List", "add");
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.List"));
    EXPECT_THAT(*first.list->ListValues.get(), SizeIs(2));
    EXPECT_THAT(*second.list->ListValues.get(), SizeIs(2));
    model.data()->changes().undo();
    EXPECT_THAT(*first.list->ListValues.get(), SizeIs(1));
    EXPECT_THAT(*second.list->ListValues.get(), SizeIs(1));
}

TEST_F(EditControllerValues, AppendsOneValueToAListThatObjectsShare)
{
    auto const third = model.wall("W3");
    model.joinSet(first.object->getPropertySetDefinitionNonConst<FcPropertySet>("Own"), third);
    edit({first.object, third});
    click("PropertySets.Own.List", "add");
    EXPECT_THAT(*first.list->ListValues.get(), SizeIs(2));
}

TEST_F(EditControllerValues, DeletesPropertiesOfEachKind)
{
    edit({first.object, second.object});
    for (std::string const name : {"Status", "Bounded", "List", "Table"}) {
        log->entries.clear();
        click("PropertySets.Own." + name, "delete");
        EXPECT_EQ(log->entries, changeAt("PropertySets.Own." + name));
    }
    EXPECT_THAT(first.object->getPropertySetDefinitions<FcPropertySet>(), IsEmpty());
    EXPECT_THAT(second.object->getPropertySetDefinitions<FcPropertySet>(), IsEmpty());
    EXPECT_EQ(countOf<fc::resource::property::FcProperty>(), 0u);
}

TEST_F(EditControllerValues, DeletesASharedPropertyOnce)
{
    auto const third = model.wall("W3");
    auto const set = first.object->getPropertySetDefinitionNonConst<FcPropertySet>("Own");
    model.joinSet(set, third);
    edit({first.object, third});
    click("PropertySets.Own.Status", "delete");
    EXPECT_THAT(propertyNames(*third, "Own"), ElementsAre("Bounded", "List", "Table"));
}

TEST_F(EditControllerValues, DeletesSets)
{
    model.addSet(first.object, "Other", {{"A", label("a")}});
    edit({first.object, second.object});
    click("PropertySets.Own", "delete");
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own"));
    EXPECT_THAT(propertyNames(*first.object, "Own"), ElementsAre("no set"));
    EXPECT_THAT(propertyNames(*second.object, "Own"), ElementsAre("no set"));
    EXPECT_THAT(propertyNames(*first.object, "Other"), ElementsAre("A"));
    model.data()->changes().undo();
    EXPECT_THAT(propertyNames(*first.object, "Own"), SizeIs(4));
    EXPECT_THAT(propertyNames(*second.object, "Own"), SizeIs(4));
}

TEST_F(EditControllerValues, DeletesASharedSetOnce)
{
    auto const third = model.wall("W3");
    model.joinSet(first.object->getPropertySetDefinitionNonConst<FcPropertySet>("Own"), third);
    edit({first.object, third});
    click("PropertySets.Own", "delete");
    EXPECT_THAT(propertyNames(*third, "Own"), ElementsAre("no set"));
    EXPECT_THAT(propertyNames(*second.object, "Own"), SizeIs(4));
}

TEST_F(EditControllerValues, DoesNothingWhereOneObjectIsOfTheWrongType)
{
    edit({first.object, model.wall("W3")});
    click("PropertySets.Own.Status", "delete");
    EXPECT_THAT(propertyNames(*first.object, "Own"), SizeIs(4));
    expectControllerReport(notOfType, notOfTypePlace);
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.Status"));
}

TEST_F(EditControllerValues, DoesNothingToObjectsOfTwoModels)
{
    Model other;
    auto const stranger = other.wall("W3");
    auto const set = other.addSet(stranger, "Own");
    auto const status = enumeratedValue("Status", {label("NEW")}, {label("NEW")});
    auto const bounds = boundedValue("Bounded", real(1), real(2), FcValue());
    auto const list = listValue("List", {label("a")});
    auto const table = tableValue("Table", {{real(1), real(2)}});
    set->HasProperties.addProperty(status);
    set->HasProperties.addProperty(bounds);
    set->HasProperties.addProperty(list);
    set->HasProperties.addProperty(table);
    editWallsOfTwoModels(first.object, other, stranger);
    click("Documents");
    click("PropertySets.Own", "delete");
    click("PropertySets.Own.List", "add");
    click("PropertySets.Own.Status", "delete");
    for (std::string const name : {"Status", "Bounded", "Table"}) {
        click("PropertySets.Own." + name, "edit");
        EXPECT_EQ(openList(), nullptr);
        EXPECT_EQ(dialog->getChildWindow(10), nullptr);
    }
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_THAT(propertyNames(*first.object, "Own"), SizeIs(4));
    EXPECT_THAT(propertyNames(*stranger, "Own"), SizeIs(4));
    EXPECT_THAT(first.object->HasAssociations(), IsEmpty());
    EXPECT_THAT(*list->ListValues.get(), SizeIs(1));
}

// --- Popups -----------------------------------------------------------------------------------------

TEST_F(EditControllerValues, APopupStandsBesideTheCursorOverTheOwnersWindow)
{
    edit({first.object});
    click("PropertySets.Own.Bounded", "edit");
    auto const window = dialog->getChildWindow(10);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getPositionOnScreen(), (ui::Position{101, 201}));
    EXPECT_EQ(window->getSize(), ui::Size(500, 300));
    EXPECT_TRUE(std::dynamic_pointer_cast<ui::ListControl>(window)->isUsingReportStyle());
    EXPECT_TRUE(window->isVisible());
}

/// Makes no window, and writes down what it was to make.
class NoWindows final : public ui::WindowBackend
{
public:
    ui::WindowHandle createWindow(ui::WindowCreation const& creation) override
    {
        asked.push_back(creation.className + " " + std::to_string(creation.controlId) + " of style " +
                        std::to_string(creation.style) + " and " + std::to_string(creation.extendedStyle));
        return {};
    }
    std::unique_ptr<ui::WindowInterface> createInterface(ui::WindowHandle const&) override { return nullptr; }
    [[nodiscard]] std::optional<ui::Position> getCursorPosition() const override { return std::nullopt; }
    [[nodiscard]] ui::WindowHandle getFocusedWindow() const override { return {}; }
    [[nodiscard]] bool isDescendant(ui::WindowHandle const&, ui::WindowHandle const&) const override
    {
        return false;
    }
    void showMessage(ui::MessageBox::Message) override {}
    std::optional<std::size_t> showPopupMenu(ui::PopupMenu const&, ui::Position const&) override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::unique_ptr<ui::ProgressBarInterface> createProgressBar(std::string const&) override
    {
        return nullptr;
    }

    std::vector<std::string> asked;
};

TEST_F(EditControllerValues, APopupIsAListWithColumnsAndABorder)
{
    edit({first.object});
    auto const noWindows = std::make_shared<NoWindows>();
    ui::details::WindowInterfaceFactory::setBackend(noWindows);
    click("PropertySets.Own.Bounded", "edit");
    ui::details::WindowInterfaceFactory::setBackend(backend);
    takeReports();
    EXPECT_THAT(noWindows->asked, ElementsAre("ListControl 10 of style 37 and 0"));
}

TEST_F(EditControllerValues, AllPopupsKeepTheirSizeUnderOneId)
{
    edit({first.object});
    click("PropertySets.Own.Bounded", "edit");
    dialog->getChildWindow(10)->setPlacement({0, 0, 320, 240});
    turnElsewhere();
    auto const stored = dialog->getStoredSettings("FcEditController_PopupControl");
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->size, ui::Size(320, 240));
    click("PropertySets.Own.Table", "edit");
    ASSERT_NE(openList(), nullptr);
    EXPECT_EQ(openList()->getSize(), ui::Size(320, 240));
}

TEST_F(EditControllerValues, OpensNoPopupWithoutAnOwner)
{
    edit({first.object});
    owner.reset();
    for (std::string const name : {"Status", "Bounded", "Table"}) {
        click("PropertySets.Own." + name, "edit");
        expectControllerReport("Could not get owner.", "createListPopupControl");
    }
    EXPECT_EQ(openList(), nullptr);
}

TEST_F(EditControllerValues, ReportsAPopupThatCannotBeMade)
{
    edit({first.object});
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    click("PropertySets.Own.Bounded", "edit");
    ui::details::WindowInterfaceFactory::setBackend(backend);
    auto const texts = takeReportTexts();
    EXPECT_THAT(texts, testing::Contains("Error creating popup control."));
    EXPECT_THAT(texts, testing::Contains("Not attached to any control yet."));
    EXPECT_EQ(first.bounds->LowerBoundValue.get(), real(1));
}

TEST_F(EditControllerValues, WritesTheTickedValuesAsThePopupCloses)
{
    SettingsScope const settings(std::make_shared<GenerousSettings>());
    edit({first.object});
    click("PropertySets.Own.Status", "edit");
    auto const list = openList();
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(list->clickCheckBox(rowOf(*list, "OLD"), 0));
    EXPECT_THAT(*first.status->EnumerationValues.get(), SizeIs(1));
    log->onEntry = [this](std::string const& entry) {
        if (entry.starts_with("reload")) {
            EXPECT_THAT(*first.status->EnumerationValues.get(), SizeIs(2));
        }
    };
    turnElsewhere();
    EXPECT_EQ(openList(), nullptr);
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.Status"));
    std::vector<std::string> texts;
    for (auto const& value : *first.status->EnumerationValues.get())
        texts.push_back(value.getAsString(false).value_or("none"));
    EXPECT_THAT(texts, ElementsAre("NEW", "OLD"));
    EXPECT_THAT(*second.status->EnumerationValues.get(), SizeIs(1));
}

TEST_F(EditControllerValues, WritesTickedValuesWhereThereWereNone)
{
    first.status->EnumerationValues = std::nullopt;
    edit({first.object});
    click("PropertySets.Own.Status", "edit");
    ASSERT_TRUE(openList()->clickCheckBox(0, 0));
    turnElsewhere();
    ASSERT_TRUE(first.status->EnumerationValues.get());
    EXPECT_THAT(*first.status->EnumerationValues.get(), SizeIs(1));
}

TEST_F(EditControllerValues, WritesBoundsAsThePopupCloses)
{
    edit({first.object});
    click("PropertySets.Own.Bounded", "edit");
    auto const list = openList();
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(list->type(1, 1, "7"));
    ASSERT_TRUE(list->clickCheckBox(0, 0));
    ASSERT_TRUE(list->clickCheckBox(2, 0));
    ASSERT_TRUE(list->type(2, 1, "5"));
    EXPECT_EQ(first.bounds->UpperBoundValue.get(), real(2));
    turnElsewhere();
    EXPECT_EQ(first.bounds->LowerBoundValue.get(), FcValue());
    EXPECT_EQ(first.bounds->UpperBoundValue.get(), real(7));
    EXPECT_EQ(first.bounds->SetPointValue.get(), real(5));
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.Bounded"));
    model.data()->changes().undo();
    EXPECT_EQ(first.bounds->LowerBoundValue.get(), real(1));
    EXPECT_EQ(first.bounds->UpperBoundValue.get(), real(2));
}

TEST_F(EditControllerValues, WritesBothColumnsOfATableAsThePopupCloses)
{
    edit({first.object});
    click("PropertySets.Own.Table", "edit");
    auto const list = openList();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->getRowCount(), 2u);
    ASSERT_TRUE(list->type(1, 0, "3"));
    ASSERT_TRUE(list->type(1, 1, "three"));
    turnElsewhere();
    EXPECT_THAT(*first.table->DefiningValues.get(), ElementsAre(real(1), real(3)));
    EXPECT_THAT(*first.table->DefinedValues.get(), ElementsAre(label("one"), label("three")));
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.Table"));
}

TEST_F(EditControllerValues, WritesATableThatHadNoValues)
{
    first.table->DefiningValues = std::nullopt;
    first.table->DefinedValues = std::nullopt;
    edit({first.object});
    click("PropertySets.Own.Table", "edit");
    turnElsewhere();
    ASSERT_TRUE(first.table->DefiningValues.get());
    EXPECT_THAT(*first.table->DefiningValues.get(), IsEmpty());
    EXPECT_THAT(*first.table->DefinedValues.get(), IsEmpty());
}

/// Presents the properties of these ids otherwise while it lives, and writes down which are asked for.
class AskedPresentations
{
public:
    explicit AskedPresentations(std::vector<std::string> ids)
        : m_ids(std::move(ids))
    {
        for (std::string const& id : m_ids)
            unit::QuantityPresentationFactory::current().registerIfcProperty(
                id, [this, id](double, std::string const&) {
                    asked.insert(id);
                    return unit::createPresentationForMeasure("LinearVelocityMeasure");
                });
    }
    ~AskedPresentations()
    {
        for (std::string const& id : m_ids)
            unit::QuantityPresentationFactory::current().registerIfcProperty(id, {});
    }
    AskedPresentations(AskedPresentations const&) = delete;
    AskedPresentations& operator=(AskedPresentations const&) = delete;

    std::set<std::string> asked;

private:
    std::vector<std::string> m_ids;
};

TEST_F(EditControllerValues, ShowsBoundsAndTablesAsTheSetOfThePropertyWantsThem)
{
    AskedPresentations presentations({"Own.Bounded", "Own.Table"});
    edit({first.object});
    click("PropertySets.Own.Bounded", "edit");
    presentations.asked.clear();
    EXPECT_NE(openList()->getText(0, 1), "");
    EXPECT_THAT(presentations.asked, ElementsAre("Own.Bounded"));
    turnElsewhere();
    click("PropertySets.Own.Table", "edit");
    presentations.asked.clear();
    EXPECT_NE(openList()->getText(0, 0), "");
    EXPECT_THAT(presentations.asked, ElementsAre("Own.Table"));
}

TEST_F(EditControllerValues, TakesTheSecondOfThreeOrMoreSegmentsForTheSet)
{
    AskedPresentations presentations({"Own.Bounded", "PropertySets.Bounded", "IsTypedBy.Bounded"});
    auto const type = model.wallType("T1");
    model.assignType(type, {second.object});
    model.addSet(type, "Own")
        ->HasProperties.addProperty(boundedValue("Bounded", real(1), real(2), FcValue()));
    edit({second.object});
    click("IsTypedBy.PropertySets.Own.Bounded", "edit");
    ASSERT_NE(openList(), nullptr);
    presentations.asked.clear();
    EXPECT_NE(openList()->getText(0, 1), "");
    EXPECT_THAT(presentations.asked, ElementsAre("PropertySets.Bounded"));
}

TEST_F(EditControllerValues, KnowsNoSetOfAPathOfFewerSegments)
{
    AskedPresentations presentations({"Own.Bounded", "Bounded.Bounded", ".Bounded", ".Table"});
    edit({first.bounds});
    click("Bounded", "edit");
    ASSERT_NE(openList(), nullptr);
    presentations.asked.clear();
    EXPECT_NE(openList()->getText(0, 1), "");
    EXPECT_THAT(presentations.asked, ElementsAre(".Bounded"));
    turnElsewhere();
    edit({first.table});
    click("Table", "edit");
    ASSERT_NE(openList(), nullptr);
    presentations.asked.clear();
    EXPECT_NE(openList()->getText(0, 0), "");
    EXPECT_THAT(presentations.asked, ElementsAre(".Table"));
}

TEST_F(EditControllerValues, EmptiesThePropertiesOfSeveralObjects)
{
    edit({first.object, second.object});
    auto const expectRefusal = [](std::string const& kind) {
        auto const name = "EditProperty" + kind + "PopupController";
        expectReport("Multi edit not supported yet.", "qev::fc::ui::" + name + "::" + name,
                     "UI/FoundationClasses/Controllers/" + name);
    };
    click("PropertySets.Own.Status", "edit");
    expectRefusal("Enumeration");
    EXPECT_EQ(openList()->getRowCount(), 0u);
    turnElsewhere();
    click("PropertySets.Own.Table", "edit");
    expectRefusal("Table");
    turnElsewhere();
    click("PropertySets.Own.Bounded", "edit");
    expectReport(
        "Multi edit not supported yet.",
        "qev::fc::ui::EditBoundedValuePropertyPopupController::EditBoundedValuePropertyPopupController",
        "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController");
    EXPECT_EQ(openList()->getRowCount(), 0u);
    turnElsewhere();
    for (Wall const& wall : {first, second}) {
        EXPECT_THAT(*wall.status->EnumerationValues.get(), IsEmpty());
        EXPECT_THAT(*wall.table->DefiningValues.get(), IsEmpty());
        EXPECT_THAT(*wall.table->DefinedValues.get(), IsEmpty());
        EXPECT_EQ(wall.bounds->LowerBoundValue.get(), FcValue());
        EXPECT_EQ(wall.bounds->UpperBoundValue.get(), FcValue());
    }
}

} // namespace
