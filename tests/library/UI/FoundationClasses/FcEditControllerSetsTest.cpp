#include "EditControllerTest.h"
#include "Format/Ifc/Schema/Pset/PropertySetDef.h"
#include "Format/Ifc/Schema/SchemaLoader.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "library/kit/TranslationScope.h"

namespace {

using namespace qev;
using namespace qev::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

constexpr char common[] = "Pset_WallCommon";

class EditControllerSets : public EditControllerTest
{
protected:
    EditControllerSets() { texts.addIn("FoundationClassesUi", "AddPropertiesPopup_AddAll", "All"); }

    TranslationScope texts;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> first = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> second = model.wall("W2");
};

TEST_F(EditControllerSets, AddsAChosenPropertyOfAChosenSet)
{
    edit({first, second});
    click("PropertySets", "whatever");
    ASSERT_NE(openList(), nullptr);
    choose(common);
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("no set"));
    choose("FireRating");
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("FireRating"));
    EXPECT_THAT(propertyNames(*second, common), ElementsAre("FireRating"));
    EXPECT_EQ(log->entries, changeAt("PropertySets"));
    EXPECT_EQ(openList(), nullptr);
    model.data()->changes().undo();
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("no set"));
    EXPECT_THAT(propertyNames(*second, common), ElementsAre("no set"));
}

TEST_F(EditControllerSets, TheSecondListNamesThePropertiesByTheTextsOfTheirSet)
{
    texts.add("Pset_WallCommon.FireRating", "Resistance to fire");
    edit({first});
    click("PropertySets");
    choose(common);
    choose("Resistance to fire");
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("FireRating"));
}

TEST_F(EditControllerSets, TheSecondListLiesWhereTheFirstDid)
{
    edit({first});
    click("PropertySets");
    auto const place = openList()->getPositionOnScreen();
    backend->setCursorPosition(ui::Position{700, 400});
    choose(common);
    ASSERT_NE(openList(), nullptr);
    EXPECT_EQ(openList()->getPositionOnScreen(), place);
    EXPECT_EQ(openList()->getText(0, 0).empty(), false);
}

TEST_F(EditControllerSets, TheFirstListGoesAsTheSecondComes)
{
    edit({first});
    click("PropertySets");
    std::weak_ptr<ui::Window> const list = ui::PopupControlAborter::current().getOpenPopup();
    choose(common);
    EXPECT_TRUE(list.expired());
    std::weak_ptr<ui::Window> const other = ui::PopupControlAborter::current().getOpenPopup();
    ASSERT_FALSE(other.expired());
    choose("FireRating");
    EXPECT_TRUE(other.expired());
}

TEST_F(EditControllerSets, GivesEachObjectWhatItLacks)
{
    model.addSet(second, common, {{"FireRating", label("F90")}});
    edit({first, second});
    click("PropertySets");
    choose(common);
    choose("FireRating");
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("FireRating"));
    EXPECT_THAT(propertyNames(*second, common), ElementsAre("FireRating"));
    auto const set = second->getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>(common);
    auto const property = fc::entityCast<fc::resource::property::FcPropertySingleValue>(
        set->HasProperties.getProperties().front());
    EXPECT_EQ(property->NominalValue.get(), label("F90"));
}

TEST_F(EditControllerSets, AddsAllPropertiesOfASet)
{
    edit({first});
    click("PropertySets");
    choose(common);
    choose("All");
    auto const* const definition = dynamic_cast<ifc::def::pset::PropertySetDef const*>(
        ifc::SchemaLoader::curr().pSchemaFromName("IFC4X3_TC1")->pXmlSetFromName(common));
    ASSERT_NE(definition, nullptr);
    EXPECT_THAT(propertyNames(*first, common), SizeIs(definition->propertyDefs.size()));
}

TEST_F(EditControllerSets, LeavesNothingBehindWhenTheUserTurnsAway)
{
    edit({first});
    click("PropertySets");
    turnElsewhere();
    EXPECT_EQ(openList(), nullptr);
    click("PropertySets");
    choose(common);
    turnElsewhere();
    EXPECT_EQ(openList(), nullptr);
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_FALSE(model.data()->changes().undoName() == "Add property set");
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("no set"));
}

TEST_F(EditControllerSets, OpensNothingWithoutAnOwner)
{
    model.addSet(first, common);
    edit({first});
    owner.reset();
    click("PropertySets");
    expectControllerReport("Could not get owner.", "createListPopupControl");
    click(std::string("PropertySets.") + common, "add");
    expectControllerReport("Could not get owner.", "createListPopupControl");
    EXPECT_EQ(openList(), nullptr);
}

TEST_F(EditControllerSets, OpensAnEmptyListWhereAnObjectIsOfTheWrongType)
{
    edit({first, model.addSet(second, "Own")});
    click("PropertySets");
    EXPECT_THAT(takeReportTexts(), Contains("Unexpected object type in selection set."));
    ASSERT_NE(openList(), nullptr);
    EXPECT_EQ(openList()->getRowCount(), 0u);
}

// --- Sets that are there ----------------------------------------------------------------------------

TEST_F(EditControllerSets, AddsPropertiesToTheSetsOfAllObjects)
{
    model.addSet(first, common, {{"FireRating", label("F30")}});
    model.addSet(second, common, {{"IsExternal", boolean(true)}});
    edit({first, second});
    auto const id = std::string("PropertySets.") + common;
    click(id, "add");
    choose("IsExternal");
    EXPECT_THAT(propertyNames(*first, common), UnorderedElementsAre("FireRating", "IsExternal"));
    EXPECT_THAT(propertyNames(*second, common), ElementsAre("IsExternal"));
    EXPECT_EQ(log->entries, changeAt(id));
    EXPECT_EQ(openList(), nullptr);
    model.data()->changes().undo();
    EXPECT_THAT(propertyNames(*first, common), ElementsAre("FireRating"));
}

TEST_F(EditControllerSets, AddsAllPropertiesThatASetLacks)
{
    model.addSet(first, common, {{"FireRating", label("F30")}});
    edit({first});
    click(std::string("PropertySets.") + common, "add");
    choose("All");
    EXPECT_THAT(propertyNames(*first, common), SizeIs(testing::Gt(5u)));
    EXPECT_THAT(propertyNames(*first, common), Contains("FireRating").Times(1));
}

TEST_F(EditControllerSets, ReloadsAndTellsBeforeThePopupGoes)
{
    model.addSet(first, common);
    edit({first});
    click(std::string("PropertySets.") + common, "add");
    std::weak_ptr<ui::Window> const list = ui::PopupControlAborter::current().getOpenPopup();
    log->onEntry = [&](std::string const&) {
        EXPECT_FALSE(list.expired());
        EXPECT_THAT(propertyNames(*first, common), ElementsAre("FireRating"));
    };
    choose("FireRating");
    EXPECT_THAT(log->entries, SizeIs(3));
    EXPECT_TRUE(list.expired());
}

} // namespace
