#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/Qt/QtCellDrawing.h"

#include <algorithm>

namespace qev::ui {

namespace {

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
    auto const width = QtCellDrawing::getMetric(option, QStyle::PM_IndicatorWidth);
    auto const height = QtCellDrawing::getMetric(option, QStyle::PM_IndicatorHeight);
    auto const margin = QtCellDrawing::getTextMargin(option);
    auto const part = takeLeft(cell, margin + width);
    return {part.left() + margin, part.center().y() - height / 2, width, height};
}

} // namespace

QtPropertyGridLayout QtPropertyGridLayout::of(PropertyGridRow const& row, QStyleOptionViewItem const& option)
{
    QtPropertyGridLayout layout;
    auto cell = option.rect;
    auto const buttonWidth = option.fontMetrics.height() + 2 * QtCellDrawing::getTextMargin(option);
    if (PropertyGridEditing::hasCheckBox(row))
        layout.checkBox = takeCheckBox(cell, option);
    if (PropertyGridEditing::hasVisibleButton(row))
        layout.button = takeRight(cell, buttonWidth);
    layout.buttons.resize(row.getState().buttons.size());
    for (auto area = layout.buttons.rbegin(); area != layout.buttons.rend(); ++area)
        *area = takeRight(cell, buttonWidth);
    layout.value = cell;
    if (PropertyGridEditing::getValueEditor(row) == PropertyGridEditor::Choice)
        layout.arrow = takeRight(cell, option.fontMetrics.height());
    return layout;
}

std::optional<std::size_t> QtPropertyGridLayout::findButton(QPoint const& position) const
{
    auto const found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](QRect const& area) { return area.contains(position); });
    return found == buttons.end() ? std::nullopt : std::optional<std::size_t>(found - buttons.begin());
}

} // namespace qev::ui
