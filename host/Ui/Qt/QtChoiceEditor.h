#pragma once

#include "HostUiQtExport.h"

#include <QComboBox>
#include <QStyledItemDelegate>

namespace qev::ui {

/// The combo box in which a cell is edited, of a list and of a property grid alike.
class HOSTUIQT_EXPORT QtChoiceEditor
{
public:
    /// A combo box without entries, which belongs to \p parent. With \p takesOtherTexts the user can type in
    /// it. Choosing an entry ends the edit through the signals of \p delegate.
    [[nodiscard]] static QComboBox* create(QWidget* parent, QStyledItemDelegate& delegate,
                                           bool takesOtherTexts);
};

} // namespace qev::ui
