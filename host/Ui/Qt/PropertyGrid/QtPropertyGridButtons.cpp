#include "Ui/Qt/PropertyGrid/QtPropertyGridButtons.h"

#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtIcons.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>

namespace qev::ui {

namespace {

/// Three dots in a square from -1 to 1: there is more to it.
QPainterPath makeDots()
{
    QPainterPath path;
    for (double const x : {-0.65, 0.0, 0.65})
        path.addEllipse(QPointF(x, 0), 0.07, 0.07);
    return path;
}

void paintSign(QPainter& painter, QPainterPath const& sign, QRect const& area, QColor const& colour)
{
    auto const size = std::min(area.width(), area.height()) / 3.6;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(area).center());
    painter.scale(size, size);
    QPen pen(colour);
    pen.setWidthF(std::max(1.2, size / 3.4) / size);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.drawPath(sign);
    painter.restore();
}

/// The shape of a picture in one colour: its own might be lost on the ground of a selection.
void paintTinted(QPainter& painter, QIcon const& icon, QRect const& area, QColor const& colour)
{
    auto shape = icon.pixmap(area.size(), painter.device()->devicePixelRatio());
    QPainter tint(&shape);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(QRect(QPoint(), area.size()), colour);
    tint.end();
    painter.drawPixmap(area, shape);
}

void paintPanel(QPainter& painter, QStyleOptionViewItem const& option, QRect const& area, bool isPressed)
{
    auto colour = option.palette.color(QPalette::Text);
    colour.setAlphaF(isPressed ? 0.25F : 0.12F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(area).adjusted(1, 2, -1, -2), 3, 3);
    painter.restore();
}

} // namespace

void QtPropertyGridButtons::paint(QPainter& painter, QStyleOptionViewItem const& option,
                                  PropertyGridRowButton const& button, QRect const& area,
                                  QColor const& foreground, Look look)
{
    if (look != Look::Flat)
        paintPanel(painter, option, area, look == Look::Pressed);
    auto const icon = button.image ? QtIcons::get("/Buttons/" + button.image->name) : QIcon();
    if (icon.isNull()) {
        paintSign(painter, makeDots(), area, foreground);
        return;
    }
    auto const size = QtCellDrawing::getMetric(option, QStyle::PM_SmallIconSize);
    auto const side = std::min({size, area.width(), area.height()});
    QRect const place(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
    if (option.state.testFlag(QStyle::State_Selected))
        paintTinted(painter, icon, place, foreground);
    else
        icon.paint(&painter, place);
}

QString QtPropertyGridButtons::getText(PropertyGridRowButton const& button)
{
    return toQString(button.text.empty() ? button.key : button.text);
}

} // namespace qev::ui
