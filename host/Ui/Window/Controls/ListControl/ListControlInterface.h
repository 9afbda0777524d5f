#pragma once

#include "Ui/Window/CheckState.h"
#include "Ui/Window/Controls/ListControl/ListControlHeaderInterface.h"
#include "Ui/Window/Controls/ListControl/ListControlSettings.h"
#include "Ui/Window/DialogControlInterface.h"
#include "Ui/Window/Image.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace qev::ui {

/// The platform side of a list. It keeps no cells: it asks the events of its `ListControl` for each.
class HOSTUI_EXPORT ListControlInterface : public DialogControlInterface
{
public:
    /// The titles of the columns are asked for here. With no columns, what was said of columns is forgotten;
    /// how the user has arranged them stays for columns of the same titles.
    virtual void setItemAndColumnCounts(std::size_t rows, std::size_t columns) = 0;
    [[nodiscard]] virtual std::size_t getItemCount() const = 0;
    [[nodiscard]] virtual std::size_t getColumnCount() const = 0;
    virtual void redrawItem(std::size_t row) = 0;
    [[nodiscard]] virtual std::vector<std::size_t> getSelectedItems() const = 0;

    /// \p mode 0 is a box with a value beside it, 2 a box alone. Null images mean the usual look.
    virtual void enableColumnCheckBoxes(std::size_t column, bool enable, int mode,
                                        std::shared_ptr<Image const> checkedImage,
                                        std::shared_ptr<Image const> uncheckedImage) = 0;
    /// Nothing for a column without check boxes.
    [[nodiscard]] virtual std::optional<int> getCheckBoxMode(std::size_t column) const = 0;
    virtual void activateComboBoxEditingForColumn(std::size_t column) = 0;
    [[nodiscard]] virtual bool isComboBoxColumn(std::size_t column) const = 0;
    [[nodiscard]] virtual bool isUsingReportStyle() const = 0;
    /// Begins to edit a cell as if the user had asked for it.
    virtual void startLabelEdit(std::size_t row, std::size_t column) = 0;
    /// Adds `ListControl::LabelEditFlag`s to those there are.
    virtual void addStyleFlags(unsigned int flags) = 0;

    /// The arrangement the user has made.
    [[nodiscard]] virtual ListControlSettings getSettings() const = 0;
    virtual void loadSettings(ListControlSettings const& settings) = 0;

    [[nodiscard]] virtual ListControlHeaderInterface& getHeaderInterface() = 0;
};

} // namespace qev::ui
