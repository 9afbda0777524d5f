#pragma once

#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/QtInterface.h"
#include "Ui/Window/Controls/ListControl/ListControlInterface.h"

namespace qev::ui {

/// What a `ListControl` reaches its widget through.
class QtListControlInterface final : public QtInterface<ListControlInterface>,
                                     private ListControlHeaderInterface
{
public:
    QtListControlInterface(QtListControl& list, int controlId);

    void show() override;
    /// A disabled list can still be looked through and copied from.
    void enable(bool enabled) override;
    [[nodiscard]] bool isEnabled() const override;

    void setItemAndColumnCounts(std::size_t rows, std::size_t columns) override;
    [[nodiscard]] std::size_t getItemCount() const override;
    [[nodiscard]] std::size_t getColumnCount() const override;
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const override;
    void redrawItem(std::size_t row) override;
    [[nodiscard]] std::vector<std::size_t> getSelectedItems() const override;
    void enableColumnCheckBoxes(std::size_t column, bool enable, int mode,
                                std::shared_ptr<Image const> checkedImage,
                                std::shared_ptr<Image const> uncheckedImage) override;
    void activateComboBoxEditingForColumn(std::size_t column) override;
    [[nodiscard]] bool isComboBoxColumn(std::size_t column) const override;
    [[nodiscard]] bool isUsingReportStyle() const override;
    void startLabelEdit(std::size_t row, std::size_t column) override;
    void addStyleFlags(unsigned int flags) override;
    [[nodiscard]] ListControlSettings getSettings() const override;
    void loadSettings(ListControlSettings const& settings) override;
    [[nodiscard]] ListControlHeaderInterface& getHeaderInterface() override { return *this; }

private:
    void setDefaultHiddenColumns(std::set<std::size_t> const& columns) override;

    /// Null once the widget is gone.
    [[nodiscard]] QtListControl* getList() const { return static_cast<QtListControl*>(getWidget()); }
};

} // namespace qev::ui
