#pragma once

#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <memory>
#include <QMimeData>
#include <vector>

namespace qev::ui {

/// Rows of a property grid as they go to the clipboard.
class HOSTUIQT_EXPORT QtPropertyGridClipboard
{
public:
    /// One row gives its value alone. Several give a line each, name and value parted by a tab, and the same
    /// as a table in HTML.
    [[nodiscard]] static std::unique_ptr<QMimeData> make(std::vector<PropertyGridRow const*> const& rows);
};

} // namespace qev::ui
