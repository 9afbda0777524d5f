#pragma once

#include "Core/Attribute/Colour.h"
#include "HostUiQtExport.h"
#include "Ui/Window/CheckState.h"

#include <QColor>
#include <QPainter>
#include <QString>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace qev::ui {

/// How cells look, of a list and of a property grid alike.
class HOSTUIQT_EXPORT QtCellDrawing
{
public:
    /// \p foreground made to stand back before \p background: \p share of it, the rest of the other.
    [[nodiscard]] static QColor getMuted(QColor const& foreground, QColor const& background,
                                         float share = 0.65F);
    /// Black or white, whichever is easier to read on \p background.
    [[nodiscard]] static QColor getReadableOn(QColor const& background);
    [[nodiscard]] static QColor toQColor(attr::Colour const& colour);

    /// The style of the widget that a cell is drawn for, or else that of the program.
    [[nodiscard]] static QStyle& getStyle(QStyleOptionViewItem const& option);
    [[nodiscard]] static int getMetric(QStyleOptionViewItem const& option, QStyle::PixelMetric metric);
    /// What is left free on both sides of a text.
    [[nodiscard]] static int getTextMargin(QStyleOptionViewItem const& option);
    /// A text as cells show it: in one line.
    [[nodiscard]] static QString getOneLine(QString text);
    /// A text as tool tips show it: as it is, with its lines.
    [[nodiscard]] static QString getToolTip(QString const& text);

    /// A box that is not \p enabled is drawn grey.
    static void paintCheckBox(QPainter& painter, QStyleOptionViewItem const& option, CheckState state,
                              QRect const& area, bool enabled);
};

} // namespace qev::ui
