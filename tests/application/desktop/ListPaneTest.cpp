#include "ListPane.h"

#include "ImportDialog.h"
#include "ListColumnsDialog.h"
#include "ListExport.h"
#include "ReportRecorder.h"
#include "SmallBuilding.h"
#include "TemporaryFolder.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"
#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QSettings>
#include <QTest>

namespace qev::test {
namespace {

using namespace application;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

constexpr auto storey = "0000000000000000000012";

class ListPaneTest : public testing::Test
{
protected:
    ListPaneTest()
        : backend(ui::QtBackend::install())
        , path(folder.write("small.ifc", smallBuilding))
    {
        QSettings().clear();
        makePane();
        session.open(path);
        pane->showFile();
        pane->setSelection({find(storey)});
    }
    ~ListPaneTest() override
    {
        pane.reset();
        ui::details::WindowInterfaceFactory::setBackend(nullptr);
        // The sets of the standard have properties of kinds that are not shown; that is reported.
        for (auto const& report : takeReports())
            EXPECT_THAT(report.text, testing::EndsWith(" not implemented."));
    }

    void makePane()
    {
        pane = std::make_unique<ListPane>(backend, session);
        ListQuestions questions;
        questions.agreeToImport = [this](ImportDialog& dialog) {
            for (int row = 0; row < dialog.getChanges().topLevelItemCount(); ++row) {
                auto const* const item = dialog.getChanges().topLevelItem(row);
                previewed.push_back(
                    (item->text(1) + ": " + item->text(2) + " > " + item->text(3)).toStdString());
            }
            for (int row = 0; row < dialog.getRefusals().topLevelItemCount(); ++row)
                refused.push_back(dialog.getRefusals().topLevelItem(row)->text(1).toStdString());
            return agrees;
        };
        questions.chooseColumns = [this](ListColumnsDialog& dialog) { return choose(dialog); };
        questions.tell = [this](QString const& text) { told.push_back(text.toStdString()); };
        questions.nameOfLayout = [] { return QStringLiteral("Fire / safety"); };
        pane->setQuestions(questions);
        pane->resize(900, 400);
        pane->show();
        QApplication::setActiveWindow(pane.get());
    }

    [[nodiscard]] fc::EntityIndex find(char const* globalId) const
    {
        return session.findObject(globalId)->getIndex();
    }
    [[nodiscard]] ui::QtListControl& list() const { return *pane->getList(); }
    [[nodiscard]] int column(std::string const& id) const
    {
        for (auto const& candidate : listColumnsOf(*pane->getControl()))
            if (candidate.id == id)
                return static_cast<int>(candidate.index);
        ADD_FAILURE() << "no column " << id;
        return 0;
    }
    [[nodiscard]] std::vector<std::string> texts(std::string const& id) const
    {
        std::vector<std::string> result;
        for (int row = 0; row < list().getCells().rowCount(); ++row)
            result.push_back(list().getCells().index(row, column(id)).data().toString().toStdString());
        return result;
    }
    [[nodiscard]] std::vector<std::string> shownColumns() const
    {
        std::vector<std::string> result;
        for (auto const& column : pane->getLayout().columns)
            result.push_back(column.id);
        return result;
    }
    void finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !list().isWorking(); }, 10000));
    }

    TemporaryFolder folder;
    std::shared_ptr<ui::QtBackend> backend;
    std::filesystem::path path;
    InspectorSession session;
    std::unique_ptr<ListPane> pane;
    std::function<bool(ListColumnsDialog&)> choose = [](ListColumnsDialog&) { return false; };
    bool agrees = true;
    std::vector<std::string> previewed;
    std::vector<std::string> refused;
    std::vector<std::string> told;
};

TEST_F(ListPaneTest, ListsWhatStandsInTheSelectedStorey)
{
    EXPECT_THAT(texts("Name"), UnorderedElementsAre("East wall", "West wall", "Entrance", "Hall"));
    pane->setClass("IfcWall");
    EXPECT_THAT(texts("Name"), UnorderedElementsAre("East wall", "West wall"));
    EXPECT_THAT(texts("Pset_WallCommon.FireRating"), ElementsAre("F30", "F30"));
}

TEST_F(ListPaneTest, ListsTheSelectionAClassOfTheFileAndWhatWasFound)
{
    pane->setScope(ListPane::Scope::Selection);
    pane->setSelection({find(entrance), find(eastWall)});
    EXPECT_THAT(texts("Name"), ElementsAre("Entrance", "East wall"));
    pane->setScope(ListPane::Scope::File);
    pane->setClass("IfcDoor");
    EXPECT_THAT(texts("Name"), ElementsAre("Entrance"));
    pane->setScope(ListPane::Scope::SearchHits);
    EXPECT_THAT(pane->getObjects(), IsEmpty());
    pane->setSearchHits({find(westWall)});
    EXPECT_THAT(texts("Name"), ElementsAre("West wall"));
}

TEST_F(ListPaneTest, ShowsWhatIsUsedAndTheRestWhenAsked)
{
    pane->setClass("IfcWall");
    EXPECT_THAT(shownColumns(), ElementsAre("GlobalId", "Name", "Pset_WallCommon.FireRating"));
    choose = [this](ListColumnsDialog& dialog) {
        dialog.getSearchBox().setText("IsExternal");
        for (int set = 0; set < dialog.getTree().topLevelItemCount(); ++set) {
            auto* const branch = dialog.getTree().topLevelItem(set);
            if (branch->text(0) != "Pset_WallCommon")
                continue;
            for (int i = 0; i < branch->childCount(); ++i)
                if (!branch->child(i)->isHidden())
                    branch->child(i)->setCheckState(0, Qt::Checked);
        }
        return true;
    };
    pane->chooseColumns();
    EXPECT_THAT(shownColumns(), Contains("Pset_WallCommon.IsExternal"));
    EXPECT_EQ(shownColumns().size(), 4u);
}

TEST_F(ListPaneTest, AnEditReachesTheModelAndCanBeUndone)
{
    pane->setClass("IfcWall");
    auto& view = list().getView();
    view.setFocus();
    view.selectionModel()->setCurrentIndex(list().getCells().index(0, column("Pset_WallCommon.FireRating")),
                                           QItemSelectionModel::ClearAndSelect);
    QTest::keyClicks(&view, "F");
    QTest::keyClicks(QApplication::focusWidget(), "90");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_THAT(texts("Pset_WallCommon.FireRating"), ElementsAre("F90", "F90")) << "The walls share the set.";
    EXPECT_TRUE(session.isModified());
    session.undo();
    pane->showValues();
    EXPECT_THAT(texts("Pset_WallCommon.FireRating"), ElementsAre("F30", "F30"));
}

TEST_F(ListPaneTest, TheArrangementOfAClassIsRememberedBetweenRuns)
{
    pane->setClass("IfcWall");
    list().setColumnHidden(static_cast<std::size_t>(column("GlobalId")), true);
    list().getView().getHeader().resizeSection(column("Name"), 222);
    pane->setClass("IfcDoor");
    EXPECT_THAT(shownColumns(), Contains("GlobalId"));
    pane.reset();
    makePane();
    pane->setSelection({find(storey)});
    pane->setClass("IfcWall");
    EXPECT_THAT(shownColumns(), ElementsAre("Name", "Pset_WallCommon.FireRating"));
    EXPECT_EQ(list().getView().getHeader().sectionSize(column("Name")), 222);
}

TEST_F(ListPaneTest, WhatOtherObjectsOfTheClassUseIsNoArrangementOfTheUser)
{
    std::string text(smallBuilding);
    std::string const both = "(#30,#31),#51";
    text.replace(text.find(both), both.size(), "(#30),#51");
    pane->leaveFile();
    ASSERT_TRUE(session.open(folder.write("other.ifc", text)));
    pane->showFile();
    pane->setScope(ListPane::Scope::Selection);
    pane->setSelection({find(westWall)});
    EXPECT_THAT(shownColumns(), ElementsAre("GlobalId", "Name"));
    pane->setSelection({find(eastWall)});
    EXPECT_THAT(shownColumns(), ElementsAre("GlobalId", "Name", "Pset_WallCommon.FireRating"));
    pane->setSelection({find(entrance)});
    pane->setSelection({find(westWall)});
    EXPECT_THAT(shownColumns(), ElementsAre("GlobalId", "Name"));
}

TEST_F(ListPaneTest, NamesHaveRoom)
{
    EXPECT_GT(list().getView().getHeader().sectionSize(column("Name")),
              pane->fontMetrics().horizontalAdvance("A name of usual length"));
}

TEST_F(ListPaneTest, LayoutsAreKeptByName)
{
    pane->setClass("IfcWall");
    ListLayout const layout{{{"Pset_WallCommon.FireRating", 99}, {"Name", 0}}, {{"Name", true}}};
    layout.store("Fire / safety");
    EXPECT_THAT(ListLayout::names(), ElementsAre(QStringLiteral("Fire / safety")));
    pane->setLayout(ListLayout::load("Fire / safety"));
    EXPECT_THAT(shownColumns(), ElementsAre("Pset_WallCommon.FireRating", "Name"));
    finish();
    EXPECT_THAT(texts("Name"), ElementsAre("West wall", "East wall"));
    ListLayout::remove("Fire / safety");
    EXPECT_THAT(ListLayout::names(), IsEmpty());
    EXPECT_EQ(ListLayout::fromJson("nonsense"), ListLayout());
}

TEST_F(ListPaneTest, WhatIsShownIsExportedAndCanBeBroughtBackChanged)
{
    pane->setClass("IfcWall");
    auto const csv = QString::fromStdString((folder.path() / "walls.csv").string());
    ASSERT_TRUE(pane->exportTo(csv));
    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    auto text = file.readAll();
    EXPECT_THAT(text.toStdString(), HasSubstr("GlobalId,Name,Pset_WallCommon.FireRating"));
    EXPECT_THAT(text.toStdString(), HasSubstr("0000000000000000000030,East wall,F30"));
    text.replace("East wall,F30", "East wall,F60");
    text += "0000000000000000009999,Nobody,F30\n";
    file.resize(0);
    file.seek(0);
    file.write(text);
    file.close();

    agrees = false;
    EXPECT_FALSE(pane->importFrom(csv));
    EXPECT_THAT(previewed, ElementsAre("Pset_WallCommon.FireRating: F30 > F60"));
    EXPECT_THAT(refused, ElementsAre("0000000000000000009999"));
    EXPECT_FALSE(session.isModified());
    agrees = true;
    EXPECT_TRUE(pane->importFrom(csv));
    EXPECT_THAT(texts("Pset_WallCommon.FireRating"), Contains("F60"));
    session.undo();
    EXPECT_FALSE(session.isModified()) << "An import is one step.";
}

TEST_F(ListPaneTest, TablesThatAreNoneAreToldAndNothingHappens)
{
    auto const csv = QString::fromStdString(folder.write("none.csv", "Name,Value\nx,y\n").string());
    EXPECT_FALSE(pane->importFrom(csv));
    EXPECT_FALSE(pane->importFrom("/nowhere/at/all.csv"));
    EXPECT_THAT(told, ElementsAre(HasSubstr("no column GlobalId"), HasSubstr("cannot be read")));
    EXPECT_FALSE(session.isModified());
}

TEST_F(ListPaneTest, WorkbooksAreWrittenToo)
{
    if (!ListExport::canWriteWorkbooks())
        GTEST_SKIP() << "made without what writes workbooks";
    pane->setClass("IfcWall");
    auto const workbook = folder.path() / "walls.xlsx";
    ASSERT_TRUE(pane->exportTo(QString::fromStdString(workbook.string())));
    QFile file(QString::fromStdString(workbook.string()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("PK"));
}

TEST_F(ListPaneTest, OpenedRowsAreTold)
{
    std::vector<fc::EntityIndex> opened;
    pane->onActivated.iHandlerAdd([&](fc::EntityIndex object) { opened.push_back(object); });
    pane->setClass("IfcDoor");
    auto& view = list().getView();
    view.setFocus();
    view.setCurrentIndex(list().getCells().index(0, column("Name")));
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(opened, ElementsAre(find(entrance)));
}

TEST_F(ListPaneTest, NothingIsListedBehindTheUsersBack)
{
    pane->hide();
    pane->setSelection({find(eastWall)});
    EXPECT_EQ(pane->getObjects().size(), 4u);
    pane->setScope(ListPane::Scope::Selection);
    pane->show();
    EXPECT_EQ(pane->getObjects().size(), 1u);
}

TEST_F(ListPaneTest, LivesThroughFilesThatComeAndGo)
{
    pane->leaveFile();
    EXPECT_EQ(pane->getList(), nullptr);
    session.close();
    pane->showFile();
    EXPECT_EQ(pane->getList(), nullptr);
    ASSERT_TRUE(session.open(path));
    pane->showFile();
    pane->setScope(ListPane::Scope::File);
    EXPECT_EQ(pane->getObjects().size(), 8u);
}

} // namespace
} // namespace qev::test
