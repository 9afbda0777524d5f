#include "../../Ui/Qt/GoldenPicture.h"
#include "../../Ui/Qt/QtUiTest.h"
#include "Edit/PropertyGridObjectEditor.h"
#include "ToyWall.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"

#include <QApplication>
#include <QPalette>
#include <QPixmap>

namespace qev::test {
namespace {

using namespace ui;
using namespace ui::edit;

std::filesystem::path const goldenFolder = QEV_GOLDEN_FOLDER;

QPalette makeDarkPalette()
{
    QPalette palette;
    QColor const window(45, 45, 48);
    QColor const text(222, 222, 222);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Link, QColor(110, 170, 240));
    palette.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
    palette.setColor(QPalette::Highlight, QColor(38, 79, 120));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

/// How the tree of the object editor looks.
class PropertyGridObjectEditorPictureTest : public QtUiTest
{
protected:
    PropertyGridObjectEditorPictureTest()
        : control(Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 460, 420}))
        , grid(*backend->getPropertyGrid(*control))
        , editor(PropertyGridObjectEditor::create(control, dialog, {}))
        , palette(QApplication::palette())
    {
        dialog->setPlacement({0, 0, 460, 420});
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
    }
    ~PropertyGridObjectEditorPictureTest() override { QApplication::setPalette(palette); }

    void show(ShownObjects const& objects, std::string const& selected)
    {
        editor->setObjects(objects, std::make_shared<ToyController>(log));
        control->showRow(*editor->findRow(object::PropertyId(selected)));
        grid.getView().setFocus();
    }
    [[nodiscard]] QImage draw()
    {
        settle();
        QPixmap picture(grid.size());
        grid.render(&picture);
        return picture.toImage();
    }

    std::vector<std::string> log;
    ToyWall wall;
    ToyWall other;
    std::shared_ptr<PropertyGridControl> control;
    QtPropertyGrid& grid;
    std::shared_ptr<PropertyGridObjectEditor> editor;
    QPalette palette;
};

TEST_F(PropertyGridObjectEditorPictureTest, TreeLooksAsReviewedInLight)
{
    show({wall.shown}, "Sets.Common");
    expectGoldenPicture(draw(), goldenFolder / "ObjectTreeLight.png");
}

TEST_F(PropertyGridObjectEditorPictureTest, TreeOfSeveralLooksAsReviewedInDark)
{
    QApplication::setPalette(makeDarkPalette());
    other.object->values[object::PropertyId("Name")] = object::PropertyValue(std::string("Wall 2"));
    other.object->values[object::PropertyId("Sets.Common.IsExternal")] = object::PropertyValue(false);
    other.object->values[object::PropertyId("Sets.Common.Width")] = object::PropertyValue(0.3);
    show({wall.shown, other.shown}, "Classifications.Toy");
    expectGoldenPicture(draw(), goldenFolder / "ObjectTreeDark.png");
}

} // namespace
} // namespace qev::test
