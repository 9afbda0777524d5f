#include "Edit/PropertyGridObjectEditor.h"

#include "../../Ui/Qt/QtUiTest.h"
#include "ToyWall.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace qev::test {
namespace {

using namespace ui;
using namespace ui::edit;
using testing::ElementsAre;
using testing::IsEmpty;
using Id = object::PropertyId;
using Value = object::PropertyValue;

/// The editor over toys in the Qt grid, driven by mouse and keys.
class PropertyGridObjectEditorQtTest : public QtUiTest
{
protected:
    PropertyGridObjectEditorQtTest()
        : control(Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 500, 400}))
        , grid(*backend->getPropertyGrid(*control))
        , view(grid.getView())
        , tester(&grid.getItemModel(), QAbstractItemModelTester::FailureReportingMode::Fatal)
        , editor(PropertyGridObjectEditor::create(control, dialog, {}))
        , controller(std::make_shared<ToyController>(log))
    {
        show({wall});
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
        view.setFocus();
        settle();
    }

    void show(std::vector<ToyShown> const& toys)
    {
        ShownObjects objects;
        for (auto const& toy : toys)
            objects.push_back(toy.shown);
        editor->setObjects(objects, controller);
        log.clear();
    }
    [[nodiscard]] QModelIndex index(std::string const& id) const
    {
        auto const row = editor->findRow(Id(id));
        return row ? grid.getItemModel().getIndex(*row, QtPropertyGridItemModel::valueColumn) : QModelIndex();
    }
    [[nodiscard]] std::string text(std::string const& id) const
    {
        return index(id).data().toString().toStdString();
    }
    void select(std::string const& id) { view.setCurrentIndex(index(id)); }
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), pressed, modifiers);
        settle();
    }
    void type(char const* typed)
    {
        // The first key opens the editor, which has the focus from then on.
        for (; *typed; ++typed)
            QTest::keyClick(QApplication::focusWidget(), *typed);
    }
    void clickButton(std::string const& id, std::size_t button)
    {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(index(id));
        auto const layout = QtPropertyGridLayout::of(*editor->findRow(Id(id)), option);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          layout.buttons.at(button).center());
        settle();
    }

    std::vector<std::string> log;
    ToyWall wall;
    ToyWall other;
    std::shared_ptr<PropertyGridControl> control;
    QtPropertyGrid& grid;
    QtPropertyGridView& view;
    QAbstractItemModelTester tester;
    std::shared_ptr<PropertyGridObjectEditor> editor;
    std::shared_ptr<ToyController> controller;
};

TEST_F(PropertyGridObjectEditorQtTest, TypingWritesAndTabGoesOn)
{
    select("Name");
    type("Wall 2");
    key(Qt::Key_Tab);
    EXPECT_EQ(wall.object->values[Id("Name")], Value(std::string("Wall 2")));
    EXPECT_EQ(editor->getSelectedProperty(), Id("Tag"));
    EXPECT_NE(view.indexWidget(index("Tag")), nullptr);
}

TEST_F(PropertyGridObjectEditorQtTest, DeleteClearsWhatMayBeEmptyAndElseSaysWhyNot)
{
    select("Name");
    key(Qt::Key_Delete);
    EXPECT_EQ(text("Name"), "Wall 1");
    EXPECT_EQ(view.getMessage().toStdString(), "This property cannot be empty.");
    select("Sets.Common.Width");
    key(Qt::Key_Delete);
    EXPECT_EQ(wall.object->values[Id("Sets.Common.Width")], Value(std::optional<double>()));
    select("Sets.Common.IsExternal");
    key(Qt::Key_Delete);
    EXPECT_EQ(wall.object->values[Id("Sets.Common.IsExternal")], Value(std::optional<bool>()));
    key(Qt::Key_Space);
    EXPECT_EQ(wall.object->values[Id("Sets.Common.IsExternal")], Value(std::optional(true)));
}

TEST_F(PropertyGridObjectEditorQtTest, ButtonsAreClickedAndTheResetIsAmongThem)
{
    clickButton("Sets.Common", 1);
    EXPECT_EQ(editor->getSelectedProperty(), Id("Sets.Common"));
    EXPECT_EQ(log.back(), "clicked Sets.Common add");
    clickButton("Classifications.Toy", 0);
    EXPECT_EQ(log.back(), "clicked Classifications.Toy delete");
    clickButton("Sets.Common.Rating", 0);
    EXPECT_EQ(text("Sets.Common.Rating"), "F90");
    EXPECT_TRUE(editor->findRow(Id("Sets.Common.Rating"))->getState().buttons.empty());
}

TEST_F(PropertyGridObjectEditorQtTest, TheContextMenuReachesTheButtons)
{
    select("Classifications.Toy");
    key(Qt::Key_Down, Qt::AltModifier);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().at(0)->text(), "Delete");
    menu->actions().at(1)->trigger();
    menu->close();
    EXPECT_EQ(log.back(), "clicked Classifications.Toy edit");
}

TEST_F(PropertyGridObjectEditorQtTest, AClickOnAReferenceFollowsIt)
{
    auto const position = view.visualRect(index("Document")).topLeft() + QPoint(20, 8);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(log.back(), "clicked Document ");
}

TEST_F(PropertyGridObjectEditorQtTest, AnEditorOverValuesThatDifferOpensEmptyAndWritesNothingUntouched)
{
    other.object->values[Id("Name")] = Value(std::string("Wall 2"));
    show({wall, other});
    select("Name");
    key(Qt::Key_F2);
    auto const* const line = qobject_cast<QLineEdit*>(view.indexWidget(index("Name")));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), "");
    EXPECT_EQ(line->placeholderText(), "varies");
    key(Qt::Key_Return);
    EXPECT_EQ(other.object->values[Id("Name")], Value(std::string("Wall 2")));
    type("Both");
    key(Qt::Key_Return);
    EXPECT_EQ(wall.object->values[Id("Name")], Value(std::string("Both")));
    EXPECT_EQ(other.object->values[Id("Name")], Value(std::string("Both")));
}

TEST_F(PropertyGridObjectEditorQtTest, WhatIsFoldedAndCurrentStaysWithOtherObjects)
{
    other.edit->rows.front().id = Id("Slab");
    view.collapse(index("Classifications").siblingAtColumn(0));
    select("Sets.Common.Width");
    show({other});
    settle();
    EXPECT_FALSE(view.isExpanded(index("Classifications").siblingAtColumn(0)));
    EXPECT_TRUE(view.isExpanded(index("Sets").siblingAtColumn(0)));
    EXPECT_EQ(view.currentIndex().siblingAtColumn(1), index("Sets.Common.Width"));
    EXPECT_EQ(editor->getSelectedProperty(), Id("Sets.Common.Width"));
}

TEST_F(PropertyGridObjectEditorQtTest, AReloadShowsTheRowItIsAbout)
{
    control->setPlacement({0, 0, 500, 160});
    settle();
    view.collapse(index("Sets").siblingAtColumn(0));
    for (int number = 0; number < 30; ++number)
        wall.edit->rows.front().children.back().children.front().children.push_back(
            ToyEdit::leaf("Sets.Common.P" + std::to_string(number)));
    dynamic_cast<ObjectPropertyEditController&>(*editor->getControllerNonConst())
        .reloadProperty(Id("Sets.Common.P20"));
    settle();
    EXPECT_TRUE(view.isExpanded(index("Sets").siblingAtColumn(0)));
    EXPECT_EQ(editor->getSelectedProperty(), Id("Sets.Common.P20"));
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(index("Sets.Common.P20")).center()));
}

TEST_F(PropertyGridObjectEditorQtTest, NewValuesFromElsewhereLeaveAnOpenEditorAlone)
{
    select("Name");
    type("Half");
    wall.object->values[Id("Name")] = Value(std::string("From elsewhere"));
    editor->updateView();
    auto const* const line = qobject_cast<QLineEdit*>(view.indexWidget(index("Name")));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), "Half");
}

} // namespace
} // namespace qev::test
