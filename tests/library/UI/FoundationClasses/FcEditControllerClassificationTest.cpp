#include "Classification/ClassificationUi.h"
#include "Core/Plugin/PluginAdministrator.h"
#include "EditControllerTest.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "library/kit/TranslationScope.h"
#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"

#include <algorithm>

namespace {

using namespace qev;
using namespace qev::test;
using fc::core::kernel::FcRelAssociatesClassification;
using fc::resource::externalreference::FcClassification;
using fc::resource::externalreference::FcClassificationReference;
using fc::resource::externalreference::FcClassificationReferenceSelect;
using fc::resource::externalreference::FcClassificationSelect;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class System final : public classification::ClassificationInterface
{
public:
    explicit System(std::string key)
        : m_key(std::move(key))
    {
    }
    [[nodiscard]] std::string getKey() const override { return m_key; }
    [[nodiscard]] std::string getDescription() const override { return {}; }

private:
    std::string m_key;
};

/// A dialog that chooses what it is told.
class ToyDialog final : public classification::ui::ClassificationDialogInterface
{
public:
    std::vector<std::string> chosen;
    /// What it was shown for: the system, the object or type, the present code.
    std::vector<std::string> asked;
    /// Runs while it is open.
    std::function<void()> onShow;

    std::vector<std::string> show(classification::ClassificationInterface& system,
                                  fc::core::kernel::FcObject const* object,
                                  fc::core::kernel::FcTypeObject const* typeObject,
                                  std::string_view selectedCode) override
    {
        auto const nameOf = [](fc::core::kernel::FcRoot const& root) { return *root.Name.get(); };
        std::string what = object ? "object " + nameOf(*object) : std::string();
        what += typeObject ? "type " + nameOf(*typeObject) : std::string();
        asked.push_back(system.getKey() + ", " + what + ", " + std::string(selectedCode));
        if (onShow)
            onShow();
        return chosen;
    }
};

class EditControllerClassification : public EditControllerTest
{
protected:
    EditControllerClassification()
    {
        auto const plugins = std::make_shared<plugin::PluginAdministrator>();
        plugins->add(groups);
        plugins->add(rooms);
        plugin::AbstractPluginAdministrator::setCurrent(plugins);
        classification::ui::setClassificationDialog(codes);
    }
    ~EditControllerClassification() override
    {
        plugin::AbstractPluginAdministrator::setCurrent(nullptr);
        classification::ui::setClassificationDialog(nullptr);
    }

    /// The code that the object has in the system; "none" without one.
    static std::string codeOf(fc::core::kernel::FcObjectDefinition const& object, System const& system)
    {
        auto const reference = object.getClassification(system);
        return reference ? reference->Identification.get().value_or("no code") : "none";
    }
    /// Classifies \p object by a reference that stands as \p reference in the file.
    void associate(std::shared_ptr<fc::core::kernel::FcObjectDefinition> const& object,
                   std::shared_ptr<FcClassificationReference> const& reference)
    {
        auto const relation = model.add<FcRelAssociatesClassification>("");
        relation->RelatingClassification = FcClassificationSelect(reference);
        relation->setRelatedObjects({fc::core::kernel::FcDefinitionSelect(object)});
    }

    TranslationScope texts;
    std::shared_ptr<System> groups = std::make_shared<System>("Groups");
    std::shared_ptr<System> rooms = std::make_shared<System>("Rooms");
    std::shared_ptr<ToyDialog> codes = std::make_shared<ToyDialog>();
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> first = model.wall("W1");
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> second = model.wall("W2");
};

// --- Adding -----------------------------------------------------------------------------------------

TEST_F(EditControllerClassification, ClassifiesAllObjectsByTheChosenCode)
{
    codes->chosen = {"21", "21.10"};
    edit({first, second});
    click("Classifications", "whatever");
    choose("Groups");
    EXPECT_THAT(codes->asked, ElementsAre("Groups, object W1, "));
    EXPECT_EQ(codeOf(*first, *groups), "21.10");
    EXPECT_EQ(codeOf(*second, *groups), "21.10");
    EXPECT_EQ(log->entries, changeAt("Classifications"));
    EXPECT_THAT(backend->getMessages(), IsEmpty());
    model.data()->changes().undo();
    EXPECT_EQ(codeOf(*first, *groups), "none");
    EXPECT_EQ(codeOf(*second, *groups), "none");
}

TEST_F(EditControllerClassification, ReadsTheObjectsAnewBeforeTheGridDoes)
{
    codes->chosen = {"21"};
    edit({first});
    auto const wrapper = std::dynamic_pointer_cast<FcPropertyWrapper>(
        controller->getWritableObjects().front()->getWritablePropertyInterface());
    EXPECT_FALSE(wrapper->getAllProperties().contains(PropertyId("Classifications.Groups")));
    log->onEntry = [&](std::string const&) {
        EXPECT_TRUE(wrapper->getAllProperties().contains(PropertyId("Classifications.Groups")));
    };
    click("Classifications");
    choose("Groups");
    EXPECT_THAT(log->entries, SizeIs(3));
}

TEST_F(EditControllerClassification, ReadsTheObjectsAnewThatCanBeChanged)
{
    codes->chosen = {"21"};
    auto const shown = edited(model.data(), first);
    auto const writable = edited(model.data(), first);
    auto const isClassifiedIn = [](ui::edit::EditedObject const& object) {
        return object.getPropertyInterface()->getAllProperties().contains(
            PropertyId("Classifications.Groups"));
    };
    controller->setObjects({shown}, {writable});
    EXPECT_FALSE(isClassifiedIn(*shown));
    EXPECT_FALSE(isClassifiedIn(*writable));
    click("Classifications");
    choose("Groups");
    EXPECT_FALSE(isClassifiedIn(*shown));
    EXPECT_TRUE(isClassifiedIn(*writable));

    auto const shownAnew = edited(model.data(), first);
    controller->setObjects({shownAnew}, {writable});
    EXPECT_TRUE(isClassifiedIn(*shownAnew));
    click("Classifications.Groups", "delete");
    EXPECT_TRUE(isClassifiedIn(*shownAnew));
    EXPECT_FALSE(isClassifiedIn(*writable));
}

TEST_F(EditControllerClassification, AsksForATypeToo)
{
    auto const type = model.wallType("T1");
    codes->chosen = {"21"};
    edit({type});
    click("Classifications");
    choose("Rooms");
    EXPECT_THAT(codes->asked, ElementsAre("Rooms, type T1, "));
    EXPECT_EQ(codeOf(*type, *rooms), "21");
}

TEST_F(EditControllerClassification, ChangesNothingWhenTheUserCancels)
{
    edit({first});
    click("Classifications");
    choose("Groups");
    EXPECT_THAT(codes->asked, SizeIs(1));
    EXPECT_THAT(log->entries, IsEmpty());
    EXPECT_THAT(first->HasAssociations(), IsEmpty());
}

TEST_F(EditControllerClassification, LeadsToTheCodeOfASystemThatTheObjectHasAlready)
{
    texts.addIn("FoundationClassesUi", "ClassificationDefaultUI_AlreadyExist", "There already");
    texts.addIn("FoundationClassesUi", "ClassificationDefaultUI_AlreadyExist_Title", "Title");
    first->classify(groups, {"21"});
    codes->chosen = {"22"};
    edit({first});
    click("Classifications");
    choose("Groups");
    ASSERT_THAT(backend->getMessages(), SizeIs(1));
    auto const& message = backend->getMessages().front();
    EXPECT_EQ(message.text, "There already");
    EXPECT_EQ(message.title, "Title");
    EXPECT_EQ(static_cast<int>(message.icon), 3);
    EXPECT_EQ(static_cast<int>(message.defaultButton), 0);
    EXPECT_FALSE(message.onClosed);
    EXPECT_THAT(codes->asked, ElementsAre("Groups, object W1, 21"));
    EXPECT_EQ(codeOf(*first, *groups), "22");
    EXPECT_EQ(std::count(log->entries.begin(), log->entries.end(), "edited"), 2);
}

TEST_F(EditControllerClassification, LeadsToTheCodeOfASystemThatATypeHasAlready)
{
    auto const type = model.wallType("T1");
    type->classify(groups, {"21"});
    codes->chosen = {"22"};
    edit({type});
    click("Classifications");
    choose("Groups");
    EXPECT_THAT(backend->getMessages(), SizeIs(1));
    EXPECT_THAT(codes->asked, ElementsAre("Groups, type T1, 21"));
    EXPECT_EQ(codeOf(*type, *groups), "22");
}

TEST_F(EditControllerClassification, KeepsTheClassificationsOfOtherSystems)
{
    first->classify(groups, {"21"});
    codes->chosen = {"B.1"};
    edit({first});
    click("Classifications");
    choose("Rooms");
    EXPECT_THAT(backend->getMessages(), IsEmpty());
    EXPECT_EQ(codeOf(*first, *groups), "21");
    EXPECT_EQ(codeOf(*first, *rooms), "B.1");
}

TEST_F(EditControllerClassification, ShowsTheDialogForNothingWhereAnObjectIsOfTheWrongType)
{
    codes->chosen = {"21"};
    edit({first, model.addSet(second, "Own")});
    click("Classifications");
    expectControllerReport("Unexpected object type in selection set.",
                           "getFcObjectsBeingEdited::<lambda_1>::operator ()");
    choose("Groups");
    EXPECT_THAT(codes->asked, ElementsAre("Groups, , "));
    EXPECT_EQ(codeOf(*first, *groups), "none");
}

TEST_F(EditControllerClassification, NeedsAnOwnerToShowTheList)
{
    edit({first});
    owner.reset();
    click("Classifications");
    expectControllerReport("Could not get owner.", "createListPopupControl");
    EXPECT_EQ(openList(), nullptr);
}

TEST_F(EditControllerClassification, OtherCodeShowsTheListOverAnyOwner)
{
    fc::ui::AddClassificationPopupController popup({first});
    std::vector<std::string> chosen;
    fc::ui::edit::FcEditController::popupClassificationClicked(
        PropertyId("Classifications"), owner, &popup,
        [&](std::shared_ptr<classification::ClassificationInterface> const& system) {
            chosen.push_back(system->getKey());
        });
    choose("Rooms");
    EXPECT_THAT(chosen, ElementsAre("Rooms"));
}

TEST_F(EditControllerClassification, MakesTheListWithoutShowingItWhereNobodyWaitsForAChoice)
{
    fc::ui::AddClassificationPopupController popup({first});
    fc::ui::edit::FcEditController::popupClassificationClicked(PropertyId("Classifications"), owner, &popup,
                                                               {});
    EXPECT_NE(dialog->getChildWindow(10), nullptr);
}

// --- Editing ----------------------------------------------------------------------------------------

TEST_F(EditControllerClassification, ReplacesACodeByAnother)
{
    first->classify(groups, {"2", "21"});
    second->classify(groups, {"2", "21"});
    codes->chosen = {"2", "22"};
    edit({first});
    click("Classifications.Groups", "edit");
    EXPECT_THAT(codes->asked, ElementsAre("Groups, object W1, 21"));
    EXPECT_EQ(codeOf(*first, *groups), "22");
    EXPECT_EQ(codeOf(*second, *groups), "21");
    EXPECT_THAT(log->entries, ElementsAre("reload Classifications.Groups", "update", "edited",
                                          "reload Classifications.Groups", "update", "edited"));
    model.data()->changes().undo();
    EXPECT_EQ(codeOf(*first, *groups), "21");
}

TEST_F(EditControllerClassification, TakesTheOldCodeAwayBeforeItAddsTheNew)
{
    first->classify(groups, {"21"});
    codes->chosen = {"22"};
    edit({first});
    std::vector<std::string> codesSeen;
    log->onEntry = [&](std::string const& entry) {
        if (entry == "edited")
            codesSeen.push_back(codeOf(*first, *groups));
    };
    click("Classifications.Groups.Name", "edit");
    EXPECT_THAT(codesSeen, ElementsAre("none", "22"));
}

TEST_F(EditControllerClassification, KeepsTheOldCodeWhenTheUserCancels)
{
    first->classify(groups, {"21"});
    edit({first});
    codes->onShow = [&] { EXPECT_EQ(codeOf(*first, *groups), "21"); };
    click("Classifications.Groups", "edit");
    EXPECT_THAT(codes->asked, SizeIs(1));
    EXPECT_EQ(codeOf(*first, *groups), "21");
    EXPECT_THAT(log->entries, IsEmpty());
}

TEST_F(EditControllerClassification, ReportsAReferenceWithoutACode)
{
    first->classify(groups, {"21"});
    auto const reference = *model.data()->entities<FcClassificationReference>().begin();
    reference->Identification = std::nullopt;
    edit({first});
    click("Classifications.Groups", "edit");
    expectControllerReport("No classification key found.", "editClassificationClicked");
    EXPECT_THAT(codes->asked, IsEmpty());
}

TEST_F(EditControllerClassification, LeavesAReferenceOfNoSystemAlone)
{
    auto const reference = std::make_shared<FcClassificationReference>();
    reference->Identification = "21";
    associate(first, reference);
    edit({first});
    // Without a system the path has no name below the heading.
    auto const wrapper = controller->getEditedObjects().front()->getPropertyInterface();
    ASSERT_TRUE(wrapper->getAllProperties().contains(PropertyId("Classifications.0")));
    click("Classifications.0", "edit");
    EXPECT_THAT(codes->asked, IsEmpty());
    EXPECT_THAT(log->entries, IsEmpty());
}

TEST_F(EditControllerClassification, LeavesReferencesThatLeadInACircleAlone)
{
    auto const reference = std::make_shared<FcClassificationReference>();
    reference->Identification = "21";
    associate(first, reference);
    reference->ReferencedSource = FcClassificationReferenceSelect(reference);
    edit({first});
    click("Classifications.0", "edit");
    EXPECT_THAT(codes->asked, IsEmpty());
}

TEST_F(EditControllerClassification, SaysThatASystemIsNotInstalled)
{
    texts.addIn("FoundationClassesUi", "ClassificationDefaultUI_NotInstalled", "%1 is missing");
    first->classify(std::make_shared<System>("Elements"), {"21"});
    edit({first});
    click("Classifications.Elements", "edit");
    EXPECT_THAT(codes->asked, IsEmpty());
    ASSERT_THAT(backend->getMessages(), SizeIs(1));
    EXPECT_EQ(backend->getMessages().front().text, "Elements is missing");
}

TEST_F(EditControllerClassification, EditsNothingWhereAnObjectHasNoSuchClassification)
{
    first->classify(groups, {"21"});
    edit({first, second});
    click("Classifications.Groups", "edit");
    expectControllerReport("Unexpected object type in selection set.",
                           "getFcObjectsBeingEdited::<lambda_1>::operator ()");
    EXPECT_THAT(codes->asked, IsEmpty());
    EXPECT_EQ(codeOf(*first, *groups), "21");
}

// --- Deleting ---------------------------------------------------------------------------------------

TEST_F(EditControllerClassification, TakesObjectsOutOfTheRelationAndKeepsIt)
{
    auto const third = model.wall("W3");
    for (auto const& wall : {first, second, third})
        wall->classify(groups, {"21"});
    first->classify(rooms, {"B.1"});
    edit({first, third});
    click("Classifications.Groups", "delete");
    EXPECT_EQ(codeOf(*first, *groups), "none");
    EXPECT_EQ(codeOf(*second, *groups), "21");
    EXPECT_EQ(codeOf(*third, *groups), "none");
    EXPECT_EQ(codeOf(*first, *rooms), "B.1");
    EXPECT_EQ(log->entries, changeAt("Classifications.Groups"));
    edit({second});
    click("Classifications.Groups", "delete");
    EXPECT_EQ(codeOf(*second, *groups), "none");
    EXPECT_EQ(model.data()->countFromId(FcRelAssociatesClassification::idFirst,
                                        FcRelAssociatesClassification::idLast),
              2u);
}

TEST_F(EditControllerClassification, IsBackInOneStepOnceTheDeletionIsUndone)
{
    for (auto const& wall : {first, second})
        wall->classify(groups, {"21"});
    edit({first, second});
    click("Classifications.Groups", "delete");
    model.data()->changes().undo();
    EXPECT_EQ(codeOf(*first, *groups), "21");
    EXPECT_EQ(codeOf(*second, *groups), "21");
}

TEST_F(EditControllerClassification, IsGoneFromTheTreeBeforeTheGridIsReloaded)
{
    first->classify(groups, {"21"});
    edit({first});
    auto const wrapper = std::dynamic_pointer_cast<FcPropertyWrapper>(
        controller->getWritableObjects().front()->getWritablePropertyInterface());
    log->onEntry = [&](std::string const&) {
        EXPECT_FALSE(wrapper->getAllProperties().contains(PropertyId("Classifications.Groups")));
    };
    click("Classifications.Groups", "delete");
    EXPECT_THAT(log->entries, SizeIs(3));
}

} // namespace
