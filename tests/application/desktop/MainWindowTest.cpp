#include "MainWindow.h"

#include "EntityEditPane.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "InspectorWindow.h"
#include "ListPane.h"
#include "MessagesPanel.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include <QDropEvent>
#include <QMimeData>
#include <QProgressDialog>
#include <QUrl>

namespace qev::test {
namespace {

using namespace application;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MainWindowTest : public InspectorWindow
{
protected:
    void editEastWall()
    {
        open();
        ASSERT_TRUE(window->selectObject(eastWall));
        ASSERT_TRUE(fireRating().isValid());
        typeInto(fireRating(), "F90");
    }

    /// How many rows of \p view below \p parent have rows of their own, and how many of these are folded.
    static int countGroups(QTreeView const& view, QModelIndex const& parent = {}, bool foldedOnly = false)
    {
        int count = 0;
        for (int i = 0; i < view.model()->rowCount(parent); ++i) {
            auto const index = view.model()->index(i, 0, parent);
            if (!view.model()->hasChildren(index))
                continue;
            count += countGroups(view, index, foldedOnly) + (foldedOnly && view.isExpanded(index) ? 0 : 1);
        }
        return count;
    }
    static int countFolded(QTreeView const& view) { return countGroups(view, {}, true); }
};

TEST_F(MainWindowTest, SaysWhatToDoWhileThereIsNothingToShow)
{
    EXPECT_THAT(window->getProperties().getHint().toStdString(), HasSubstr("Open an IFC file"));
    open();
    EXPECT_THAT(window->getProperties().getHint().toStdString(), HasSubstr("Select an object"));
    EXPECT_THAT(window->getFileText().toStdString(), HasSubstr("IFC4X3_ADD2"));
}

TEST_F(MainWindowTest, ObjectSelectedInTheStructureIsShownInTheGrid)
{
    open();
    auto& structure = window->getStructure();
    window->selectObject(westWall);
    EXPECT_EQ(structure.currentIndex().data(), "West wall");
    structure.setCurrentIndex(structure.indexAbove(structure.currentIndex()));
    EXPECT_EQ(structure.currentIndex().data(), "East wall");
    EXPECT_EQ(window->getProperties().getHint(), "");
    EXPECT_EQ(value(fireRating()), "F30");
}

TEST_F(MainWindowTest, EditReachesTheModelAndMarksTheWindow)
{
    editEastWall();
    EXPECT_EQ(value(fireRating()), "F90");
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(window->getFileActions().save());
    EXPECT_FALSE(window->isWindowModified());
    std::string expected(smallBuilding);
    expected.replace(expected.find("F30"), 3, "F90");
    EXPECT_EQ(readFile(path), expected);
}

TEST_F(MainWindowTest, UndoShowsTheOldValueAgain)
{
    editEastWall();
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(value(fireRating()), "F30");
    EXPECT_FALSE(window->isWindowModified());
    QTest::keyClick(window.get(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(value(fireRating()), "F90");
    EXPECT_EQ(readFile(path), smallBuilding);
}

TEST_F(MainWindowTest, SharedSetIsToldBesideTheEditedRow)
{
    open();
    window->selectObject(eastWall);
    view().setCurrentIndex(fireRating());
    EXPECT_THAT(window->getNote().toStdString(), HasSubstr("shared with another object"));
    window->selectObject(entrance);
    view().setCurrentIndex(row({"Pset_DoorCommon", "FireRating"}));
    EXPECT_EQ(window->getNote(), "");
}

TEST_F(MainWindowTest, UnsavedChangesAreAskedAboutBeforeTheyGo)
{
    editEastWall();
    EXPECT_FALSE(window->close());
    EXPECT_FALSE(window->getFileActions().close());
    EXPECT_FALSE(window->getFileActions().open(QString::fromStdString(path.string())));
    EXPECT_THAT(asked, ElementsAre("leave", "leave", "leave"));
    EXPECT_EQ(value(fireRating()), "F90");

    leave = FileQuestions::Leave::Discard;
    EXPECT_TRUE(window->getFileActions().close());
    EXPECT_EQ(readFile(path), smallBuilding);
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, SaveOnLeavingSaves)
{
    editEastWall();
    leave = FileQuestions::Leave::Save;
    EXPECT_TRUE(window->close());
    EXPECT_THAT(readFile(path), HasSubstr("F90"));
}

/// Presses the button of every progress bar as soon as it is there.
class Impatience final : public QObject
{
public:
    Impatience() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (auto* const bar = qobject_cast<QProgressDialog*>(watched);
            bar && event->type() == QEvent::WindowTitleChange)
            bar->cancel();
        return false;
    }
};

TEST_F(MainWindowTest, ALargeFileCanBeKeptFromBeingSaved)
{
    std::string building(smallBuilding);
    building.insert(building.find("#1="), "/*" + std::string(std::size_t{17} << 20, ' ') + "*/\n");
    folder.write("small.ifc", building);
    editEastWall();
    pathToSave = QString::fromStdString((folder.path() / "other.ifc").string());
    {
        Impatience const user;
        EXPECT_FALSE(window->getFileActions().save());
        EXPECT_FALSE(window->getFileActions().saveAs());
    }
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(readFile(path) == building);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "other.ifc"));
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_TRUE(window->getFileActions().save());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, ChangesOfAnotherProgramAreAskedAboutOnSave)
{
    editEastWall();
    folder.write("small.ifc", "somebody else's");
    EXPECT_FALSE(window->getFileActions().save());
    EXPECT_EQ(readFile(path), "somebody else's");
    overwrite = true;
    EXPECT_TRUE(window->getFileActions().save());
    EXPECT_THAT(readFile(path), HasSubstr("F90"));
    EXPECT_THAT(asked, ElementsAre("overwrite", "overwrite"));
}

TEST_F(MainWindowTest, SaveAsWritesAnotherFileAndStaysWithIt)
{
    editEastWall();
    EXPECT_FALSE(window->getFileActions().saveAs());
    pathToSave = QString::fromStdString((folder.path() / "other.ifc").string());
    EXPECT_TRUE(window->getFileActions().saveAs());
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("other.ifc"));
    EXPECT_EQ(readFile(path), smallBuilding);
}

TEST_F(MainWindowTest, EnterInTheSearchBoxChoosesTheFirstHitAndF3TheNext)
{
    open();
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    auto& search = window->getSearch();
    ASSERT_EQ(QApplication::focusWidget(), &search.getBox());
    QTest::keyClicks(&search.getBox(), "wall");
    QTest::keyClick(&search.getBox(), Qt::Key_Return);
    EXPECT_EQ(value(row({"IfcWall", "Name"})), "East wall");
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_EQ(value(row({"IfcWall", "Name"})), "West wall");
    EXPECT_EQ(search.getCountText(), "2 found");
    QTest::keyClick(&search.getBox(), Qt::Key_Escape);
    EXPECT_FALSE(search.getHits().isVisible());
    EXPECT_EQ(window->getStructure().currentIndex().data(), "West wall");
}

TEST_F(MainWindowTest, BrokenFileIsToldAndThePresentOneStays)
{
    open();
    window->selectObject(eastWall);
    auto const broken = folder.write("broken.ifc", "no file of that kind");
    EXPECT_FALSE(window->getFileActions().open(QString::fromStdString(broken.string())));
    EXPECT_EQ(asked.size(), 1u);
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("small.ifc"));
    EXPECT_GT(window->getMessages().count(), 0);
}

TEST_F(MainWindowTest, DroppedFileIsOpened)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path.string()))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_TRUE(window->getSession().isOpen());
}

TEST_F(MainWindowTest, AttributesShowWhatTheModelHasWhateverWasChosen)
{
    open();
    window->selectObject(eastWall);
    auto const attribute = row({"IfcWall", "PredefinedType"});
    ASSERT_TRUE(attribute.isValid());
    view().model()->setData(attribute.siblingAtColumn(1), "SHEAR", Qt::EditRole);
    settle();
    EXPECT_EQ(value(row({"IfcWall", "PredefinedType"})), "");
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, UnknownGlobalIdSelectsNothing)
{
    open();
    EXPECT_FALSE(window->selectObject("2222222222222222222222"));
    EXPECT_THAT(window->getProperties().getHint().toStdString(), HasSubstr("Select an object"));
}

TEST_F(MainWindowTest, UnusedPropertiesCanBeHidden)
{
    open();
    window->selectObject(eastWall);
    auto const rowsBefore = window->getProperties().getGrid()->getItemModel().rowCount();
    window->getProperties().setUnusedShown(false);
    EXPECT_LT(window->getProperties().getGrid()->getItemModel().rowCount(), rowsBefore);
    EXPECT_EQ(value(fireRating()), "F30");
}

TEST_F(MainWindowTest, FoldedGroupsStayFoldedInTheNextRun)
{
    open();
    window->selectObject(eastWall);
    view().collapse(row({"Pset_WallCommon"}));
    window->storeWindow();
    window = std::make_unique<MainWindow>(backend);
    window->restoreWindow();
    open();
    window->selectObject(westWall);
    EXPECT_FALSE(view().isExpanded(row({"Pset_WallCommon"})));
    EXPECT_TRUE(view().isExpanded(row({"IfcWall"})));
}

TEST_F(MainWindowTest, AllGroupsOfTheViewInFrontAreFoldedAndUnfolded)
{
    open();
    window->selectObject(eastWall);
    auto const foldAll = [this] {
        QTest::keyClick(window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    };
    auto const unfoldAll = [this] {
        QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    };
    window->showEditor();
    auto const& editor = window->getEditor().getGrid()->getView();
    unfoldAll();
    EXPECT_EQ(countFolded(editor), 0);
    foldAll();
    EXPECT_EQ(countFolded(editor), countGroups(editor));
    EXPECT_GT(countGroups(editor), editor.model()->rowCount()) << "no groups within groups";
    EXPECT_LT(countFolded(view()), countGroups(view())) << "The view behind it is left alone.";

    window->showList(false);
    foldAll();
    EXPECT_EQ(countFolded(view()), countGroups(view()));
    unfoldAll();
    EXPECT_EQ(countFolded(view()), 0);
    EXPECT_EQ(countFolded(editor), countGroups(editor));
}

TEST_F(MainWindowTest, PropertiesWithoutAValueSaySo)
{
    open();
    window->selectObject(eastWall);
    auto const hint = [&](std::vector<std::string> const& names) {
        return ui::PropertyGridEditing::getHint(*ui::QtPropertyGridItemModel::getRow(row(names)));
    };
    EXPECT_EQ(hint({"Pset_WallCommon", "AcousticRating"}), "not set");
    EXPECT_EQ(hint({"IfcWall", "OwnerHistory"}), "");
    EXPECT_EQ(hint({"Pset_WallCommon", "FireRating"}), "");
    EXPECT_EQ(hint({"Pset_WallCommon", "LoadBearing"}), "");
}

TEST_F(MainWindowTest, AnotherFileTakesThePlaceOfThePresentOne)
{
    open();
    window->selectObject(eastWall);
    auto const other = folder.write("other.ifc", smallBuilding);
    EXPECT_TRUE(window->getFileActions().open(QString::fromStdString(other.string())));
    EXPECT_THAT(window->getProperties().getHint().toStdString(), HasSubstr("Select an object"));
    EXPECT_TRUE(window->selectObject(westWall));
    EXPECT_EQ(value(fireRating()), "F30");
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(MainWindowTest, TheListShowsWhatStandsInTheSelectedObjects)
{
    open();
    window->selectObject("0000000000000000000012");
    EXPECT_THAT(window->getList().getObjects(), IsEmpty()) << "Nobody looks at it yet.";
    window->showList(true);
    EXPECT_EQ(window->getList().getObjects().size(), 4u);
    window->getList().setScope(ListPane::Scope::Selection);
    window->getStructure().selectAll();
    EXPECT_GT(window->getList().getObjects().size(), 4u);
}

TEST_F(MainWindowTest, TheListShowsWhatWasFound)
{
    open();
    window->showList(true);
    window->getList().setScope(ListPane::Scope::SearchHits);
    window->getSearch().getBox().setText("wall");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->getSearch().isSearching(); }));
    EXPECT_EQ(window->getList().getObjects().size(), 2u);
}

TEST_F(MainWindowTest, ARowThatIsOpenedShowsItsProperties)
{
    open();
    window->selectObject("0000000000000000000012");
    window->showList(true);
    auto const object = window->getSession().findObject(eastWall)->getIndex();
    fireEvents(window->getList().onActivated, object);
    EXPECT_EQ(window->getSession().getSelection()->getIndex(), object);
    EXPECT_TRUE(window->getProperties().isVisible());
    EXPECT_FALSE(window->getList().isVisible());
}

} // namespace
} // namespace qev::test
