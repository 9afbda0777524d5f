#include "../RichGrid.h"
#include "DarkPalette.h"
#include "GoldenPicture.h"
#include "QtUiTest.h"

#include <QApplication>
#include <QPalette>
#include <QPixmap>

namespace qev::test {
namespace {

using namespace ui;

std::filesystem::path const goldenFolder = QEV_GOLDEN_FOLDER;

class QtPropertyGridPictureTest : public QtUiTest
{
protected:
    QtPropertyGridPictureTest()
        : control(Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 460, 900}))
        , grid(*backend->getPropertyGrid(*control))
        , palette(QApplication::palette())
    {
        dialog->setPlacement({0, 0, 460, 900});
        RichGrid::fill(control);
        // A text cursor that blinks is there in one picture and gone in the next.
        QApplication::setCursorFlashTime(0);
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
    }
    ~QtPropertyGridPictureTest() override { QApplication::setPalette(palette); }

    QModelIndex select(int group, int row)
    {
        auto const& model = grid.getItemModel();
        auto const index = model.index(row, 0, model.index(group, 0));
        grid.getView().setCurrentIndex(index);
        grid.getView().setFocus();
        return index;
    }
    [[nodiscard]] QImage draw(double scale)
    {
        settle();
        QPixmap picture(grid.size() * scale);
        picture.setDevicePixelRatio(scale);
        grid.render(&picture);
        return picture.toImage();
    }

    std::shared_ptr<PropertyGridControl> control;
    QtPropertyGrid& grid;
    QPalette palette;
};

TEST_F(QtPropertyGridPictureTest, LooksAsReviewedInLight)
{
    select(1, 1);
    expectGoldenPicture(draw(1), goldenFolder / "RichGridLight.png");
}

TEST_F(QtPropertyGridPictureTest, LooksAsReviewedInDark)
{
    QApplication::setPalette(makeDarkPalette());
    select(1, 5);
    expectGoldenPicture(draw(1), goldenFolder / "RichGridDark.png");
}

TEST_F(QtPropertyGridPictureTest, LooksAsReviewedAtTwiceTheSize)
{
    select(1, 8);
    expectGoldenPicture(draw(2), goldenFolder / "RichGridDouble.png");
}

TEST_F(QtPropertyGridPictureTest, EditorOfANumberLooksAsReviewed)
{
    grid.getView().openEditor(select(1, 1), false);
    expectGoldenPicture(draw(1), goldenFolder / "NumberEditor.png");
}

TEST_F(QtPropertyGridPictureTest, RefusedInputLooksAsReviewed)
{
    grid.getItemModel().setData(select(1, 1).siblingAtColumn(1), "wide", Qt::EditRole);
    grid.getView().collapse(grid.getItemModel().index(2, 0));
    expectGoldenPicture(draw(1), goldenFolder / "RefusedInput.png");
}

TEST_F(QtPropertyGridPictureTest, EditorOfChoicesLooksAsReviewedInDark)
{
    QApplication::setPalette(makeDarkPalette());
    grid.getView().openEditor(select(1, 8), false);
    expectGoldenPicture(draw(1), goldenFolder / "ChoiceEditorDark.png");
}

} // namespace
} // namespace qev::test
