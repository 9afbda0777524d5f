#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include <algorithm>
#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace qev::ui {

namespace {

QStyle* getStyle(QStyleOptionViewItem const& option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

int getMetric(QStyleOptionViewItem const& option, QStyle::PixelMetric metric)
{
    return getStyle(option)->pixelMetric(metric, &option, option.widget);
}

/// Cuts \p width off the left of \p cell. \returns what was cut off.
QRect takeLeft(QRect& cell, int width)
{
    auto const taken = QRect(cell.left(), cell.top(), std::min(width, cell.width()), cell.height());
    cell.setLeft(cell.left() + taken.width());
    return taken;
}

QRect takeRight(QRect& cell, int width)
{
    auto const taken = std::min(width, cell.width());
    QRect const part(cell.right() - taken + 1, cell.top(), taken, cell.height());
    cell.setRight(cell.right() - taken);
    return part;
}

QRect takeCheckBox(QRect& cell, QStyleOptionViewItem const& option)
{
    auto const width = getMetric(option, QStyle::PM_IndicatorWidth);
    auto const height = getMetric(option, QStyle::PM_IndicatorHeight);
    auto const margin = QtPropertyGridLayout::getTextMargin(option);
    auto const part = takeLeft(cell, margin + width);
    return {part.left() + margin, part.center().y() - height / 2, width, height};
}

} // namespace

QtPropertyGridLayout QtPropertyGridLayout::of(PropertyGridRow const& row, QStyleOptionViewItem const& option)
{
    QtPropertyGridLayout layout;
    auto cell = option.rect;
    if (PropertyGridEditing::hasCheckBox(row))
        layout.checkBox = takeCheckBox(cell, option);
    if (PropertyGridEditing::hasVisibleButton(row))
        layout.button = takeRight(cell, option.fontMetrics.height() + 2 * getTextMargin(option));
    layout.value = cell;
    if (PropertyGridEditing::getValueEditor(row) == PropertyGridEditor::Choice)
        layout.arrow = takeRight(cell, option.fontMetrics.height());
    return layout;
}

int QtPropertyGridLayout::getTextMargin(QStyleOptionViewItem const& option)
{
    return getMetric(option, QStyle::PM_FocusFrameHMargin) + 2;
}

} // namespace qev::ui
