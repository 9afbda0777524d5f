#pragma once

#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <cstddef>
#include <optional>
#include <QRect>
#include <QStyleOptionViewItem>
#include <vector>

namespace qev::ui {

/// Where the parts of one value cell stand. Rectangles of parts that a row does not have are empty.
struct HOSTUIQT_EXPORT QtPropertyGridLayout
{
    QRect checkBox;
    /// Where the value is written and edited.
    QRect value;
    /// The mark of a drop list.
    QRect arrow;
    QRect button;
    /// The buttons at the end of the row, from left to right.
    std::vector<QRect> buttons;

    /// The place of the button at \p position among them; nothing where there is none.
    [[nodiscard]] std::optional<std::size_t> findButton(QPoint const& position) const;

    /// The parts of \p row in the cell of \p option, from the measures of the widget's style.
    [[nodiscard]] static QtPropertyGridLayout of(PropertyGridRow const& row,
                                                 QStyleOptionViewItem const& option);
};

} // namespace qev::ui
