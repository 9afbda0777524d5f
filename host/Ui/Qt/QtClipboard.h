#pragma once

#include "HostUiQtExport.h"
#include "Ui/List/ListBlock.h"

#include <QString>

namespace qev::ui {

/// What Ctrl+C takes, of a list and of a property grid alike.
class HOSTUIQT_EXPORT QtClipboard
{
public:
    static void copy(QString const& text);
    /// As text with tabs and as a table of HTML. With \p hasHeaders the first row holds the headers.
    static void copy(ListBlock const& block, bool hasHeaders = false);
};

} // namespace qev::ui
