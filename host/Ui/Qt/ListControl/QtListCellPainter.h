#pragma once

#include "HostUiQtExport.h"
#include "Ui/Qt/ListControl/QtListCell.h"

#include <optional>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace qev::ui {

/// Draws the cells of a list, many at a time: what is the same for all of them is worked out once.
class HOSTUIQT_EXPORT QtListCellPainter
{
public:
    /// How a cell stands among the others.
    struct Place
    {
        QRect area;
        bool isSelected = false;
        bool isCurrent = false;
    };

    /// \p option is that of the view; both outlive this.
    QtListCellPainter(QPainter& painter, QStyleOptionViewItem const& option);

    void paint(QtListCell const& cell, Place const& place);

    /// Where the box of a cell is in \p area.
    [[nodiscard]] static QRect getCheckBox(QStyleOptionViewItem const& option, QRect const& area,
                                           bool isBoxAlone);

private:
    void paintText(QtListCell const& cell, Place const& place, QRect const& area);
    void paintLocalMark(QRect const& area, bool isSelected);
    void setFont(bool isBold);
    [[nodiscard]] QColor getTextColour(QtListCell const& cell, Place const& place) const;
    /// What is behind a cell that is not selected, as it looks in the palette; nothing for the sheet itself.
    [[nodiscard]] std::optional<QColor> getBackground(QtListCell const& cell) const;

    QPainter& m_painter;
    QStyleOptionViewItem const& m_option;
    QFont m_plainFont;
    QFont m_boldFont;
    QFontMetrics m_plainMetrics;
    QFontMetrics m_boldMetrics;
    bool m_isBold = false;
    int m_margin;
    QPalette::ColorGroup m_colours;
    QColor m_grid;
};

} // namespace qev::ui
