#include "QtPropertyGridTest.h"

#include <QHeaderView>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;

/// What the user has folded and divided, and how long it lasts.
class QtPropertyGridLayoutTest : public QtPropertyGridTest
{
};

TEST_F(QtPropertyGridLayoutTest, FoldedGroupsStayFoldedByNameWhenTheRowsAreMadeAnew)
{
    view.collapse(index({"Attributes"}, 0));
    fill();
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
    EXPECT_TRUE(view.isExpanded(index({"Pset_WallCommon"}, 0)));
    view.expand(index({"Attributes"}, 0));
    fill();
    EXPECT_TRUE(view.isExpanded(index({"Attributes"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, FoldedGroupsStayFoldedInTheNextRunOfTheProgram)
{
    view.collapse(index({"Attributes"}, 0));
    auto const layout = grid.saveLayout();

    auto const other = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 500, 400});
    auto& otherGrid = *backend->getPropertyGrid(*other);
    EXPECT_TRUE(otherGrid.restoreLayout(layout));
    for (auto const* const groupName : {"Attributes", "Pset_WallCommon"}) {
        auto group = std::make_unique<PropertyGridProperty>(groupName);
        group->addSubProperty(*text("Name", "x"));
        other->addProperty(std::move(group));
    }
    auto& otherView = otherGrid.getView();
    EXPECT_FALSE(otherView.isExpanded(otherGrid.getItemModel().index(0, 0)));
    EXPECT_TRUE(otherView.isExpanded(otherGrid.getItemModel().index(1, 0)));
}

TEST_F(QtPropertyGridLayoutTest, RowsThatAreThereTakeARestoredLayoutToo)
{
    view.collapse(index({"Pset_WallCommon"}, 0));
    auto const layout = grid.saveLayout();
    view.expand(index({"Pset_WallCommon"}, 0));
    view.collapse(index({"Attributes"}, 0));
    EXPECT_TRUE(grid.restoreLayout(layout));
    EXPECT_FALSE(view.isExpanded(index({"Pset_WallCommon"}, 0)));
    EXPECT_TRUE(view.isExpanded(index({"Attributes"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, GroupsThatAreNotThereAreRememberedAllTheSame)
{
    view.collapse(index({"Attributes"}, 0));
    control->removeAllProperties();
    EXPECT_THAT(view.getFolded(), ElementsAre(Path{"Attributes"}));
    fill();
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, BytesOfSomethingElseAreNoLayoutAndChangeNothing)
{
    auto const layout = grid.saveLayout();
    view.collapse(index({"Attributes"}, 0));
    auto const split = view.getSplit();
    EXPECT_FALSE(grid.restoreLayout("nonsense"));
    EXPECT_FALSE(grid.restoreLayout({}));
    EXPECT_FALSE(grid.restoreLayout(layout.left(layout.size() - 1)));
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
    EXPECT_DOUBLE_EQ(view.getSplit(), split);
}

TEST_F(QtPropertyGridLayoutTest, EnterFoldsAndUnfoldsAGroup)
{
    select({"Attributes"});
    key(Qt::Key_Return);
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
    key(Qt::Key_Return);
    EXPECT_TRUE(view.isExpanded(index({"Attributes"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, AllGroupsAreFoldedAtOnceAndStaySo)
{
    view.setAllFolded(true);
    fill();
    EXPECT_FALSE(view.isExpanded(index({"Attributes"}, 0)));
    EXPECT_FALSE(view.isExpanded(index({"Pset_WallCommon"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, GroupsWithinGroupsAreFoldedWithAllOthers)
{
    addMore = [](PropertyGridProperty& set) {
        PropertyGridProperty group("More");
        group.addSubProperty(*text("Colour", "red"));
        set.addSubProperty(group);
    };
    fill();
    EXPECT_TRUE(view.isExpanded(index({"Pset_WallCommon", "More"}, 0)));
    view.setAllFolded(true);
    EXPECT_FALSE(view.isExpanded(index({"Pset_WallCommon", "More"}, 0)));
    view.setAllFolded(false);
    EXPECT_TRUE(view.isExpanded(index({"Pset_WallCommon", "More"}, 0)));
}

TEST_F(QtPropertyGridLayoutTest, SplitIsDraggedBetweenTheRowsAndKept)
{
    auto const before = view.header()->sectionSize(0);
    auto const y = view.visualRect(index(nameRow)).center().y();
    QPoint const start(before, y);
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent move(QEvent::MouseMove, QPointF(start + QPoint(50, 0)),
                     view.viewport()->mapToGlobal(QPointF(start + QPoint(50, 0))), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, start + QPoint(50, 0));
    EXPECT_EQ(view.header()->sectionSize(0), before + 50);
    auto const split = view.getSplit();

    QtPropertyGrid other;
    EXPECT_TRUE(other.restoreLayout(grid.saveLayout()));
    EXPECT_DOUBLE_EQ(other.getView().getSplit(), split);

    control->setPlacement({0, 0, 250, 400});
    settle();
    EXPECT_NEAR(view.header()->sectionSize(0), split * view.viewport()->width(), 1);
}

} // namespace
} // namespace qev::test
