#include "Ui/Qt/QtIcons.h"
#include "GoldenPicture.h"
#include "Icons/BuiltInIcons.h"
#include "Icons/IconResources.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>
#include <set>
#include <string>

namespace qev::test {
namespace {

using namespace ui;
using platform::qt::IconResources;

std::filesystem::path const goldenFolder = QEV_GOLDEN_FOLDER;

/// All drawings of both sizes, each once.
QImage drawAll(QColor const& background)
{
    std::set<std::string_view> seen;
    std::vector<std::pair<std::string_view, int>> drawings;
    platform::qt::BuiltInIcons const icons;
    for (auto const& [path, drawing] : icons.getPictures())
        if (seen.insert(drawing).second)
            drawings.emplace_back(path, path.ends_with("_16x16.svg") ? 16 : 20);

    constexpr int columns = 24;
    constexpr int cell = 56;
    auto const rows = (static_cast<int>(drawings.size()) + columns - 1) / columns;
    QImage sheet(columns * cell, rows * cell, QImage::Format_RGB32);
    sheet.fill(background);
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        auto const [path, size] = drawings[i];
        auto const icon = QtIcons::get(IconResources::getImageId(path));
        auto const column = static_cast<int>(i) % columns;
        auto const row = static_cast<int>(i) / columns;
        painter.drawPixmap(column * cell + 8, row * cell + 8, icon.pixmap(2 * size, 2 * size));
    }
    return sheet;
}

bool hasInk(QIcon const& icon, int size)
{
    auto const image = icon.pixmap(size, size).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > 0)
                return true;
    return false;
}

TEST(QtIcons, AllLookAsReviewedInLight)
{
    expectGoldenPicture(drawAll(Qt::white), goldenFolder / "IconsLight.png");
}

TEST(QtIcons, AllLookAsReviewedInDark)
{
    expectGoldenPicture(drawAll(QColor(30, 30, 32)), goldenFolder / "IconsDark.png");
}

TEST(QtIcons, EveryDrawingCanBeDrawnInItsSizeAndInTwiceThat)
{
    platform::qt::BuiltInIcons const icons;
    for (auto const& [path, drawing] : icons.getPictures()) {
        auto const icon = QtIcons::get(IconResources::getImageId(path));
        auto const size = path.ends_with("_16x16.svg") ? 16 : 20;
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << path;
        EXPECT_TRUE(icon.availableSizes().contains(QSize(2 * size, 2 * size))) << path;
        EXPECT_TRUE(hasInk(icon, size)) << path;
    }
}

TEST(QtIcons, OfANameHaveBothDrawings)
{
    auto const icon = QtIcons::get("/Buttons/delete");
    EXPECT_TRUE(icon.availableSizes().contains(QSize(16, 16)));
    EXPECT_TRUE(icon.availableSizes().contains(QSize(20, 20)));
}

TEST(QtIcons, OfUnknownNamesAndIdsAreEmpty)
{
    EXPECT_TRUE(QtIcons::get("/Buttons/NoSuchButton").isNull());
    EXPECT_TRUE(QtIcons::get(Guid()).isNull());
    EXPECT_TRUE(QtIcons::get(IconResources::getImageId("/IFC/NoSuchClass_16x16.svg")).isNull());
}

} // namespace
} // namespace qev::test
