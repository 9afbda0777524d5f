#include "Ui/Qt/QtIcons.h"

#include "Icons/IconResources.h"

#include <functional>
#include <map>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <string>

namespace qev::ui {

namespace {

using platform::qt::IconResources;

QPixmap draw(QSvgRenderer& renderer, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return pixmap;
}

/// Adds the drawing at \p path in its own size and in those of denser screens.
void addDrawing(QIcon& icon, std::string const& path)
{
    auto const drawing = IconResources::getDrawing(path);
    if (drawing.empty())
        return;
    QSvgRenderer renderer(QByteArray(drawing.data(), static_cast<qsizetype>(drawing.size())));
    auto const size = renderer.defaultSize().width();
    for (auto const scale : {2, 3, 4}) {
        auto const pixmap = draw(renderer, size * scale / 2);
        icon.addPixmap(pixmap);
        // Left to itself, Qt tints the icons of selected rows until they can hardly be told from the row.
        icon.addPixmap(pixmap, QIcon::Selected);
    }
}

QIcon& getCached(std::string const& key, std::function<void(QIcon&)> const& make)
{
    static std::map<std::string, QIcon> icons;
    auto const [icon, isNew] = icons.try_emplace(key);
    if (isNew)
        make(icon->second);
    return icon->second;
}

} // namespace

QIcon QtIcons::get(Guid const& imageId)
{
    auto const path = IconResources::getPath(imageId);
    return getCached(path, [&path](QIcon& icon) { addDrawing(icon, path); });
}

QIcon QtIcons::get(std::string_view name)
{
    std::string const key(name);
    return getCached(key, [&key](QIcon& icon) {
        addDrawing(icon, key + "_16x16.svg");
        addDrawing(icon, key + "_20x20.svg");
    });
}

} // namespace qev::ui
