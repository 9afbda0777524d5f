#include "EntityEditPane.h"

#include "Core/Id/Guid.h"
#include "InspectorWindow.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"

#include <QLineEdit>

namespace qev::test {
namespace {

using namespace application;
using object::PropertyId;
using testing::ElementsAre;
using testing::HasSubstr;

/// The editor beside the grid and the list, in the window of the program.
class EntityEditPaneTest : public InspectorWindow
{
protected:
    EntityEditPaneTest()
        : pane(window->getEditor())
    {
        open();
        window->showEditor();
    }

    [[nodiscard]] ui::QtPropertyGridView& editorView() const { return pane.getGrid()->getView(); }
    [[nodiscard]] std::shared_ptr<ui::PropertyGridRow> editorRow(std::string const& id) const
    {
        return pane.getEditSession()->getEditor().findRow(PropertyId(id));
    }
    [[nodiscard]] QModelIndex index(std::string const& id) const
    {
        return pane.getGrid()->getItemModel().getIndex(*editorRow(id),
                                                       ui::QtPropertyGridItemModel::valueColumn);
    }
    [[nodiscard]] std::string text(std::string const& id) const
    {
        auto const found = editorRow(id);
        return found ? ui::PropertyGridEditing::getDisplayedText(*found) : "no row";
    }
    void typeIntoEditor(std::string const& id, char const* typed)
    {
        editorView().setFocus();
        editorView().setCurrentIndex(index(id));
        // The first key opens the editor, which has the focus from then on.
        for (; *typed; ++typed)
            QTest::keyClick(QApplication::focusWidget(), *typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        settle();
    }
    void clickButton(std::string const& id, std::size_t button)
    {
        auto& view = editorView();
        view.scrollTo(index(id));
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(index(id));
        auto const layout = ui::QtPropertyGridLayout::of(*editorRow(id), option);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          layout.buttons.at(button).center());
        settle();
    }

    EntityEditPane& pane;
};

TEST_F(EntityEditPaneTest, SaysWhatToDoWhileNothingIsSelected)
{
    EXPECT_THAT(pane.getHint().toStdString(), HasSubstr("Select an object"));
    window->selectObject(eastWall);
    EXPECT_EQ(pane.getHint(), "");
    EXPECT_EQ(text("Name"), "East wall");
}

TEST_F(EntityEditPaneTest, AnEditShowsInAllViewsAndIsUndone)
{
    window->selectObject(eastWall);
    typeIntoEditor("PropertySets.Pset_WallCommon.FireRating", "F90");
    EXPECT_TRUE(window->isWindowModified());
    window->showList(false);
    EXPECT_EQ(value(fireRating()), "F90");
    window->showEditor();
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("PropertySets.Pset_WallCommon.FireRating"), "F30");
    typeIntoEditor("Name", "Gable");
    EXPECT_EQ(window->getStructure().currentIndex().data(), "Gable");
}

TEST_F(EntityEditPaneTest, AnEditInTheGridShowsInTheEditor)
{
    window->showList(false);
    window->selectObject(eastWall);
    typeInto(fireRating(), "F120");
    window->showEditor();
    EXPECT_EQ(text("PropertySets.Pset_WallCommon.FireRating"), "F120");
}

TEST_F(EntityEditPaneTest, SeveralSelectedObjectsAreEditedTogether)
{
    window->selectObject(westWall);
    auto& structure = window->getStructure();
    auto const first = structure.currentIndex();
    structure.selectionModel()->select(structure.indexAbove(first),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_TRUE(editorRow("Name")->getState().isMixed);
    typeIntoEditor("Name", "Wall");
    EXPECT_EQ(text("Name"), "Wall");
    EXPECT_EQ(structure.indexAbove(first).data(), "Wall");
    EXPECT_EQ(first.data(), "Wall");
}

TEST_F(EntityEditPaneTest, AButtonChangesTheModelAndUndoBringsItBack)
{
    window->selectObject(entrance);
    clickButton("PropertySets.Pset_DoorCommon", 0);
    EXPECT_EQ(editorRow("PropertySets.Pset_DoorCommon"), nullptr);
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("PropertySets.Pset_DoorCommon.FireRating"), "T30");
}

TEST_F(EntityEditPaneTest, AddingASetAsksInTwoPopupsAndShowsIt)
{
    window->selectObject(entrance);
    clickButton("PropertySets", 0);
    // The second popup is open before the first one goes.
    auto const pick = [](QString const& text) {
        for (auto* const widget : QApplication::topLevelWidgets()) {
            auto* const popup = dynamic_cast<ui::QtListControl*>(widget);
            auto const place =
                popup && popup->isVisible()
                    ? popup->getView().model()->match(popup->getView().model()->index(0, 0), Qt::DisplayRole,
                                                      text, 1, Qt::MatchExactly)
                    : QModelIndexList();
            if (place.isEmpty())
                continue;
            popup->getView().setCurrentIndex(place.front());
            QTest::keyClick(&popup->getView(), Qt::Key_Return);
            settle();
            return true;
        }
        return false;
    };
    ASSERT_TRUE(pick("Pset_ManufacturerTypeInformation"));
    ASSERT_TRUE(pick("Manufacturer"));
    EXPECT_NE(editorRow("PropertySets.Pset_ManufacturerTypeInformation.Manufacturer"), nullptr);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(EntityEditPaneTest, PopupsHaveTheSizeOfTheLastRun)
{
    pane.setPopupSizes({{"FcEditController_PopupControl", QSize(640, 420)}, {"broken", "no size"}});
    EXPECT_EQ(pane.getPopupSizes(), (QVariantMap{{"FcEditController_PopupControl", QSize(640, 420)}}));
    window->selectObject(entrance);
    clickButton("PropertySets", 0);
    std::vector<QSize> sizes;
    for (auto* const widget : QApplication::topLevelWidgets())
        if (dynamic_cast<ui::QtListControl*>(widget) && widget->isVisible())
            sizes.push_back(widget->size());
    EXPECT_THAT(sizes, ElementsAre(QSize(640, 420)));
}

TEST_F(EntityEditPaneTest, TheEditorIsInFrontAgainInTheNextRun)
{
    window->storeWindow();
    application::MainWindow next(backend);
    next.restoreWindow();
    next.show();
    EXPECT_TRUE(next.getEditor().isVisible());
}

TEST_F(EntityEditPaneTest, AnObjectThatALinkLeadsToIsSelected)
{
    window->selectObject(eastWall);
    pane.getEditSession()->getEditor().goToObject(*Guid::fromString(entrance));
    settle();
    EXPECT_EQ(text("Name"), "Entrance");
    EXPECT_EQ(window->getStructure().currentIndex().data(), "Entrance");
}

TEST_F(EntityEditPaneTest, ADocumentIsOpenedBesideTheFile)
{
    std::vector<QUrl> opened;
    pane.setOpenFunction([&](QUrl const& address) { opened.push_back(address); });
    folder.write("plan.pdf", "plan");
    window->selectObject(eastWall);
    auto& editor = pane.getEditSession()->getEditor();
    EXPECT_FALSE(pane.getOpenButton().isVisible());
    editor.setSelectedReference("plan.pdf");
    editor.setReferenceActionEnabled(true);
    EXPECT_TRUE(pane.getOpenButton().isVisible());
    QTest::mouseClick(&pane.getOpenButton(), Qt::LeftButton);
    editor.openExternalReference("https://example.org/plan");
    ASSERT_EQ(opened.size(), 2u);
    EXPECT_TRUE(opened[0].isLocalFile());
    EXPECT_THAT(opened[0].toLocalFile().toStdString(), testing::EndsWith("/plan.pdf"));
    EXPECT_EQ(opened[1].toString(), "https://example.org/plan");
}

TEST_F(EntityEditPaneTest, ClosingTheFileEmptiesTheEditorAndAnotherFileFillsItAgain)
{
    window->selectObject(eastWall);
    window->getFileActions().close();
    EXPECT_EQ(pane.getEditSession(), nullptr);
    EXPECT_THAT(pane.getHint().toStdString(), HasSubstr("Open an IFC file"));
    open();
    window->selectObject(entrance);
    EXPECT_EQ(text("Name"), "Entrance");
}

} // namespace
} // namespace qev::test
