#include "EntityEditSession.h"

#include "Core/Id/Guid.h"

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "InspectorSession.h"
#include "ReportRecorder.h"
#include "SmallBuilding.h"
#include "TemporaryFolder.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::test {
namespace {

using namespace application;
using object::PropertyId;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The object editor over entities of a file, on the headless back end.
class EntityEditSessionTest : public testing::Test
{
protected:
    EntityEditSessionTest()
        : path(folder.write("small.ifc", smallBuilding))
        , backend(ui::HeadlessBackend::install())
        , dialog(backend->createDialog({800, 600}))
        , session(std::make_unique<EntityEditSession>(dialog, makeRequests()))
        , grid(*backend->getPropertyGrid(*session->getGrid()))
    {
        EXPECT_TRUE(file.open(path));
    }
    ~EntityEditSessionTest() override
    {
        session.reset();
        dialog.reset();
        ui::details::WindowInterfaceFactory::setBackend(nullptr);
    }

    EntityEditSession::Requests makeRequests()
    {
        EntityEditSession::Requests requests;
        requests.openReference = [this](std::string const& reference) { opened.push_back(reference); };
        requests.goToObject = [this](std::string const& globalId) { gone.push_back(globalId); };
        return requests;
    }
    void show(std::vector<char const*> const& globalIds)
    {
        std::vector<std::shared_ptr<fc::FcBase>> entities;
        for (auto const* const globalId : globalIds)
            entities.push_back(file.findObject(globalId));
        session->show(file.getData(), entities);
    }
    [[nodiscard]] ui::HeadlessPropertyGrid::Row row(std::string const& id) const
    {
        return session->getEditor().findRow(PropertyId(id));
    }
    [[nodiscard]] std::string text(std::string const& id) const
    {
        auto const found = row(id);
        return found ? ui::PropertyGridEditing::getDisplayedText(*found) : "no row";
    }

    TemporaryFolder folder;
    std::filesystem::path path;
    InspectorSession file;
    std::vector<std::string> opened;
    std::vector<std::string> gone;
    std::shared_ptr<ui::HeadlessBackend> backend;
    std::shared_ptr<ui::Dialog> dialog;
    std::unique_ptr<EntityEditSession> session;
    ui::HeadlessPropertyGrid& grid;
};

TEST_F(EntityEditSessionTest, ShowsTheTreeOfAnEntityWithItsButtons)
{
    show({eastWall});
    EXPECT_EQ(text("Name"), "East wall");
    EXPECT_EQ(text("PropertySets.Pset_WallCommon.FireRating"), "F30");
    EXPECT_THAT(ui::PropertyGridRowRecord::of(*row("PropertySets")).buttonKeys, ElementsAre(""));
    EXPECT_THAT(ui::PropertyGridRowRecord::of(*row("Classifications")).buttonKeys, ElementsAre(""));
    EXPECT_THAT(ui::PropertyGridRowRecord::of(*row("PropertySets.Pset_WallCommon")).buttonKeys,
                ElementsAre("delete", "add"));
}

TEST_F(EntityEditSessionTest, AnEditOfSeveralIsOneStepThatCanBeUndone)
{
    show({eastWall, westWall});
    EXPECT_TRUE(row("Name")->getState().isMixed);
    EXPECT_TRUE(grid.type(row("Name"), "Wall"));
    EXPECT_EQ(text("Name"), "Wall");
    file.undo();
    session->refresh();
    EXPECT_TRUE(row("Name")->getState().isMixed);
    EXPECT_FALSE(file.canUndo());
    EXPECT_FALSE(file.isModified());
}

TEST_F(EntityEditSessionTest, ASetIsDeletedByItsButtonAndComesBackByUndo)
{
    show({entrance});
    EXPECT_TRUE(grid.pressButton(row("PropertySets.Pset_DoorCommon"), "delete"));
    EXPECT_EQ(row("PropertySets.Pset_DoorCommon"), nullptr);
    file.undo();
    session->refresh();
    EXPECT_EQ(text("PropertySets.Pset_DoorCommon.FireRating"), "T30");
}

TEST_F(EntityEditSessionTest, ADocumentIsAddedToAllObjectsAndItsAddressEdited)
{
    show({eastWall, westWall});
    EXPECT_TRUE(grid.pressButton(row("Documents"), ""));
    auto const document = row("Documents");
    ASSERT_FALSE(document->getChildren().empty());
    EXPECT_TRUE(file.isModified());
    file.undo();
    session->refresh();
    EXPECT_TRUE(row("Documents")->getChildren().empty());
    EXPECT_FALSE(file.isModified());
}

TEST_F(EntityEditSessionTest, ThePopupOfAddingASetIsAListOverTheDialog)
{
    show({entrance});
    EXPECT_TRUE(grid.pressButton(row("PropertySets"), ""));
    auto const popup = std::dynamic_pointer_cast<ui::ListControl>(dialog->getChildWindow(10));
    ASSERT_NE(popup, nullptr);
    EXPECT_THAT(backend->getListControl(*popup)->dump(), HasSubstr("Pset_DoorWindowGlazingType"));
}

TEST_F(EntityEditSessionTest, AnEmptiedPropertyLeavesTheRows)
{
    show({entrance});
    EXPECT_TRUE(grid.clear(row("PropertySets.Pset_DoorCommon.FireRating")));
    EXPECT_THAT(text("PropertySets.Pset_DoorCommon.FireRating"), testing::AnyOf("", "no row"));
    EXPECT_TRUE(file.isModified());
    file.undo();
    session->refresh();
    EXPECT_EQ(text("PropertySets.Pset_DoorCommon.FireRating"), "T30");
}

TEST_F(EntityEditSessionTest, DeletedEntitiesLeaveTheEditor)
{
    show({eastWall, entrance});
    file.getData()->entityDelete(file.findObject(entrance));
    session->refresh();
    EXPECT_EQ(session->getEntities().size(), 1u);
    EXPECT_EQ(text("Name"), "East wall");
    file.getData()->entityDelete(file.findObject(eastWall));
    session->refresh();
    EXPECT_EQ(grid.dump(), "");
}

TEST_F(EntityEditSessionTest, RequestsReachTheProgram)
{
    auto& editor = session->getEditor();
    editor.openExternalReference("plan.pdf");
    editor.goToObject(*Guid::fromString(eastWall));
    EXPECT_THAT(opened, ElementsAre("plan.pdf"));
    EXPECT_THAT(gone, ElementsAre(eastWall));
}

TEST_F(EntityEditSessionTest, AnOpenPopupEndsWithTheSession)
{
    show({entrance});
    EXPECT_TRUE(grid.pressButton(row("PropertySets"), ""));
    ASSERT_NE(dialog->getChildWindow(10), nullptr);
    session.reset();
    EXPECT_EQ(dialog->getChildWindow(10), nullptr);
}

TEST_F(EntityEditSessionTest, OtherObjectsCloseAnOpenPopup)
{
    show({entrance});
    EXPECT_TRUE(grid.pressButton(row("PropertySets"), ""));
    show({eastWall});
    EXPECT_EQ(dialog->getChildWindow(10), nullptr);
    EXPECT_EQ(text("Name"), "East wall");
}

} // namespace
} // namespace qev::test
