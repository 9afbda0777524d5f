#include "Ui/Qt/ListControl/QtListCellPainter.h"

#include "Ui/Qt/QtCellDrawing.h"

#include <algorithm>

namespace qev::ui {

namespace {

QFont makeBold(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

QtListCellPainter::QtListCellPainter(QPainter& painter, QStyleOptionViewItem const& option)
    : m_painter(painter)
    , m_option(option)
    , m_plainFont(option.font)
    , m_boldFont(makeBold(option.font))
    , m_plainMetrics(m_plainFont)
    , m_boldMetrics(m_boldFont)
    , m_margin(QtCellDrawing::getTextMargin(option))
    , m_colours(!option.state.testFlag(QStyle::State_Enabled) ? QPalette::Disabled
                : option.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                              : QPalette::Inactive)
    , m_grid(QtCellDrawing::getMuted(option.palette.color(m_colours, QPalette::Text),
                                     option.palette.color(m_colours, QPalette::Base), 0.14F))
{
    m_painter.setFont(m_plainFont);
}

void QtListCellPainter::paint(QtListCell const& cell, Place const& place)
{
    if (place.isSelected)
        m_painter.fillRect(place.area, m_option.palette.brush(m_colours, QPalette::Highlight));
    else if (auto const background = getBackground(cell))
        m_painter.fillRect(place.area, *background);
    m_painter.setPen(m_grid);
    m_painter.drawLine(place.area.bottomLeft(), place.area.bottomRight());
    m_painter.drawLine(place.area.topRight(), place.area.bottomRight());

    auto area = place.area.adjusted(m_margin, 0, -m_margin - 1, -1);
    if (cell.checkState) {
        auto const box = getCheckBox(m_option, place.area, cell.isBoxAlone);
        QtCellDrawing::paintCheckBox(m_painter, m_option, *cell.checkState, box,
                                     !cell.isBoxGrey && m_colours != QPalette::Disabled);
        area.setLeft(box.right() + 1 + m_margin);
    }
    if (!cell.text.isEmpty() && area.width() > 0)
        paintText(cell, place, area);
    if (cell.isLocal)
        paintLocalMark(place.area, place.isSelected);
    if (place.isCurrent) {
        m_painter.setPen(m_option.palette.color(m_colours, QPalette::Text));
        m_painter.drawRect(place.area.adjusted(0, 0, -2, -2));
    }
}

QRect QtListCellPainter::getCheckBox(QStyleOptionViewItem const& option, QRect const& area, bool isBoxAlone)
{
    QSize const size(QtCellDrawing::getMetric(option, QStyle::PM_IndicatorWidth),
                     QtCellDrawing::getMetric(option, QStyle::PM_IndicatorHeight));
    auto const left = isBoxAlone ? area.left() + (area.width() - size.width()) / 2
                                 : area.left() + QtCellDrawing::getTextMargin(option);
    return {QPoint(left, area.top() + (area.height() - size.height()) / 2), size};
}

void QtListCellPainter::paintText(QtListCell const& cell, Place const& place, QRect const& area)
{
    setFont(cell.isEmphasised);
    auto const& metrics = m_isBold ? m_boldMetrics : m_plainMetrics;
    auto text = QtCellDrawing::getOneLine(cell.text);
    // Measuring a text takes as long as drawing it; short ones fit in any case.
    if (text.size() * metrics.maxWidth() > area.width())
        text = metrics.elidedText(text, Qt::ElideRight, area.width());
    m_painter.setPen(getTextColour(cell, place));
    auto const baseline = area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
    m_painter.drawText(QPoint(area.left(), baseline), text);
}

void QtListCellPainter::paintLocalMark(QRect const& area, bool isSelected)
{
    auto const size = m_plainMetrics.height() / 3;
    auto const corner = area.topLeft();
    QPoint const points[] = {corner, corner + QPoint(size, 0), corner + QPoint(0, size)};
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(
        m_option.palette.brush(m_colours, isSelected ? QPalette::HighlightedText : QPalette::Highlight));
    m_painter.drawPolygon(points, 3);
    m_painter.setBrush(Qt::NoBrush);
}

void QtListCellPainter::setFont(bool isBold)
{
    if (isBold == m_isBold)
        return;
    m_isBold = isBold;
    m_painter.setFont(isBold ? m_boldFont : m_plainFont);
}

QColor QtListCellPainter::getTextColour(QtListCell const& cell, Place const& place) const
{
    if (place.isSelected)
        return m_option.palette.color(m_colours, QPalette::HighlightedText);
    if (cell.textColour.isValid())
        return cell.textColour;
    if (auto const background = getBackground(cell))
        return QtCellDrawing::getReadableOn(*background);
    return m_option.palette.color(m_colours, QPalette::Text);
}

std::optional<QColor> QtListCellPainter::getBackground(QtListCell const& cell) const
{
    auto const& colour = cell.backgroundColour;
    if (!colour.isValid() || colour.alpha() == 0)
        return std::nullopt;
    auto const base = m_option.palette.color(m_colours, QPalette::Base);
    bool const isDark = base.lightnessF() < 0.5F;
    // A grey says how far a cell stands back from a white sheet; on a dark one it would stand out.
    if (isDark && colour.hslSaturation() == 0)
        return QtCellDrawing::getMuted(m_option.palette.color(m_colours, QPalette::Text), base,
                                       1 - colour.lightnessF());
    return colour;
}

} // namespace qev::ui
