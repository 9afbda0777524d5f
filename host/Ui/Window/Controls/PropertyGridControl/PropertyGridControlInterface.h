#pragma once

#include "Ui/PropertyGrid/PropertyGridModel.h"
#include "Ui/Window/DialogControlInterface.h"

#include <memory>

namespace qev::ui {

/// The platform side of a property grid: it draws the rows of its model and takes input to them, through
/// `PropertyGridEditing`.
class HOSTUI_EXPORT PropertyGridControlInterface : public DialogControlInterface
{
public:
    /// The rows. Shared with the platform window, which may end at another time.
    [[nodiscard]] virtual std::shared_ptr<PropertyGridModel> getModel() const = 0;
    /// Lays the rows out anew.
    virtual void adjustLayout() = 0;
    /// Makes \p row current and brings it into view, unfolding what it stands below.
    virtual void showRow(PropertyGridRow& row) = 0;
    /// The row that is current; null when none is.
    [[nodiscard]] virtual std::shared_ptr<PropertyGridRow> getCurrentRow() const = 0;
};

} // namespace qev::ui
