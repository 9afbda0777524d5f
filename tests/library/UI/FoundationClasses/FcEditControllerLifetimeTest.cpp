#include "EditControllerTest.h"
#include "library/kit/TranslationScope.h"

// What may go while a popup is open. These tests are worth most under the address sanitizer.

namespace {

using namespace qev;
using namespace qev::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char common[] = "Pset_WallCommon";

class EditControllerLifetime : public EditControllerTest
{
protected:
    EditControllerLifetime()
    {
        auto const set = model.addSet(wall, "Own");
        set->HasProperties.addProperty(
            enumeratedValue("Status", {label("NEW")}, {label("NEW"), label("OLD")}));
        bounds = boundedValue("Bounded", real(1), real(2), FcValue());
        set->HasProperties.addProperty(bounds);
        set->HasProperties.addProperty(tableValue("Table", {{real(1), real(2)}}));
        model.addSet(wall, common, {{"FireRating", label("F30")}});
        edit({wall});
    }

    /// Buttons that open a popup.
    static std::vector<std::pair<std::string, std::string>> popups()
    {
        return {{"PropertySets", ""},
                {std::string("PropertySets.") + common, "add"},
                {"Classifications", ""},
                {"PropertySets.Own.Status", "edit"},
                {"PropertySets.Own.Bounded", "edit"},
                {"PropertySets.Own.Table", "edit"}};
    }

    TranslationScope texts;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::resource::property::FcPropertyBoundedValue> bounds;
};

TEST_F(EditControllerLifetime, AnOpenPopupGoesWithItsController)
{
    for (auto const& [id, key] : popups()) {
        auto const next = std::make_shared<ToyEditController>();
        next->setOwner(owner);
        next->setObjects(controller->getEditedObjects(), controller->getWritableObjects());
        click(id, key);
        std::weak_ptr<ui::Window> const window = ui::PopupControlAborter::current().getOpenPopup();
        ASSERT_FALSE(window.expired()) << id;
        controller = next;
        EXPECT_TRUE(window.expired()) << id;
        EXPECT_EQ(ui::PopupControlAborter::current().getOpenPopup(), nullptr);
    }
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_EQ(bounds->LowerBoundValue.get(), real(1));
}

TEST_F(EditControllerLifetime, AnOpenPopupDoesNotKeepItsOwner)
{
    for (auto const& [id, key] : popups()) {
        auto program = std::make_shared<ToyObjectEditor>(log, dialog);
        auto programs = std::make_shared<ToyEditController>();
        programs->setOwner(program);
        programs->setObjects(controller->getEditedObjects(), controller->getWritableObjects());
        // As a program does that keeps the controller with its editor.
        program->belongings = programs;
        programs->onButtonClicked(PropertyId(id), key);
        ASSERT_NE(openList(), nullptr) << id;
        std::weak_ptr<ToyObjectEditor> const weakProgram = program;
        std::weak_ptr<ToyEditController> const weakController = programs;
        program.reset();
        programs.reset();
        EXPECT_TRUE(weakProgram.expired()) << id;
        EXPECT_TRUE(weakController.expired()) << id;
        EXPECT_EQ(openList(), nullptr) << id;
    }
}

TEST_F(EditControllerLifetime, AValueIsWrittenThoughTheOwnerIsGone)
{
    click("PropertySets.Own.Bounded", "edit");
    ASSERT_TRUE(openList()->type(0, 1, "0.5"));
    owner.reset();
    turnElsewhere();
    EXPECT_EQ(bounds->LowerBoundValue.get(), real(0.5));
    EXPECT_THAT(log->entries, IsEmpty());
}

TEST_F(EditControllerLifetime, APropertyIsAddedThoughTheOwnerIsGone)
{
    click(std::string("PropertySets.") + common, "add");
    owner.reset();
    choose("IsExternal");
    EXPECT_THAT(propertyNames(*wall, common), Contains("IsExternal"));
    EXPECT_EQ(openList(), nullptr);
}

TEST_F(EditControllerLifetime, TheSecondListOfASetNeedsTheOwner)
{
    click("PropertySets");
    std::weak_ptr<ui::Window> const window = ui::PopupControlAborter::current().getOpenPopup();
    owner.reset();
    ASSERT_TRUE(openList()->activate(0, 0));
    EXPECT_THAT(takeReportTexts(), ElementsAre("Could not get owner.", "Not attached to any control yet."));
    EXPECT_TRUE(window.expired());
    EXPECT_EQ(openList(), nullptr);
}

TEST_F(EditControllerLifetime, NothingHappensOnceTheWindowIsGone)
{
    for (auto const& [id, key] : popups()) {
        auto const parent = backend->createDialog({400, 300});
        owner->dialog = parent;
        click(id, key);
        ASSERT_NE(openList(), nullptr) << id;
        owner->dialog = nullptr;
        parent->detach(true);
        EXPECT_EQ(openList(), nullptr) << id;
    }
    owner->dialog = dialog;
    log->entries.clear();
    click("PropertySets.Own.Bounded", "edit");
    EXPECT_NE(openList(), nullptr);
    turnElsewhere();
    EXPECT_EQ(log->entries, changeAt("PropertySets.Own.Bounded"));
}

TEST_F(EditControllerLifetime, TheNextPopupOfAKindReplacesTheLast)
{
    click("PropertySets.Own.Bounded", "edit");
    std::weak_ptr<ui::Window> const window = ui::PopupControlAborter::current().getOpenPopup();
    turnElsewhere();
    EXPECT_FALSE(window.expired());
    click("PropertySets.Own.Bounded", "edit");
    EXPECT_TRUE(window.expired());
    EXPECT_NE(openList(), nullptr);
}

TEST_F(EditControllerLifetime, OtherObjectsMayBeEditedOverTheReload)
{
    auto const other = model.wall("W2");
    click(std::string("PropertySets.") + common, "add");
    log->onEntry = [&](std::string const&) { edit({other}); };
    choose("IsExternal");
    EXPECT_THAT(propertyNames(*wall, common), Contains("IsExternal"));
    EXPECT_THAT(propertyNames(*other, common), ElementsAre("no set"));
}

} // namespace
