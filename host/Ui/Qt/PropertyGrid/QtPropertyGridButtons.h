#pragma once

#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <QStyleOptionViewItem>

class QPainter;

namespace qev::ui {

/// The buttons at the end of a row: how they look, and what a menu offers in their place.
class HOSTUIQT_EXPORT QtPropertyGridButtons
{
public:
    enum class Look
    {
        Flat,
        Hovered,
        Pressed
    };

    /// Draws \p button into \p area: its picture among the program's "/Buttons/", or three dots where there
    /// is none of that name.
    static void paint(QPainter& painter, QStyleOptionViewItem const& option,
                      PropertyGridRowButton const& button, QRect const& area, QColor const& foreground,
                      Look look);
    /// What the tool tip and the menu say of the button.
    [[nodiscard]] static QString getText(PropertyGridRowButton const& button);
};

} // namespace qev::ui
