#pragma once

#include "HostUiExport.h"
#include "Ui/Headless/HeadlessWindow.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridModel.h"
#include "Ui/PropertyGrid/PropertyGridRowRecord.h"

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// A property grid without a screen, driven as by a user.
///
/// Input takes the same road as in any other back end: the row's value is set, then the handlers run.
/// Each input gives false, and changes nothing, for a row that a user cannot reach: one that is null,
/// below a collapsed row, no longer in the grid, or in a grid that is hidden or disabled.
///
/// Ownership: the model owns the rows. A row got here means its row until the grid is filled anew.
class HOSTUI_EXPORT HeadlessPropertyGrid final : public HeadlessWindow
{
public:
    using Row = std::shared_ptr<PropertyGridRow>;

    HeadlessPropertyGrid(int controlId, WindowPlacement const& placement);

    [[nodiscard]] std::unique_ptr<WindowInterface> createInterface() override;
    [[nodiscard]] std::shared_ptr<PropertyGridModel> const& getModel() const { return m_model; }

    /// The rows that can be seen, from top to bottom.
    [[nodiscard]] std::vector<Row> rows() const;
    /// The first visible row with these names from the top level down; null when there is none.
    [[nodiscard]] Row findRow(std::vector<std::string> const& path) const;

    /// Makes \p row the current one, as a click on its name does. Rows made anew keep the current row by the
    /// names down to it.
    bool select(Row const& row);
    /// The current row; null when there is none, or when it cannot be seen.
    [[nodiscard]] Row getCurrentRow() const;
    /// Makes the next row that can be changed current, as Tab does; the previous one when not \p forwards.
    /// False when there is none.
    bool selectNextEditable(bool forwards = true);
    /// What the pane below the rows says of the current row.
    [[nodiscard]] std::string getDescription() const;
    /// What a copy of the current row takes: its value, or its name where it has none.
    [[nodiscard]] std::string copy() const;

    /// Types \p text into the editor of \p row and confirms it, as Return does.
    /// False also when the row cannot be typed in or refuses the text.
    bool type(Row const& row, std::string_view text);
    /// Takes an entry of the drop list.
    bool choose(Row const& row, std::string_view text);
    /// Clears the value, as Del does.
    bool clear(Row const& row);
    bool clickCheckBox(Row const& row);
    bool pressButton(Row const& row);
    /// Presses the first button of that key at the end of the row.
    bool pressButton(Row const& row, std::string_view key);
    /// Clicks the value of a row that leads somewhere.
    bool followLink(Row const& row);
    /// Why the last input was refused; empty when it was accepted or the row was out of reach.
    [[nodiscard]] std::string const& getMessage() const { return m_message; }

    /// Shows or hides the rows below \p row. The state is kept by the names down to the row, also when
    /// the grid is filled anew. False when there are none below.
    bool expand(Row const& row);
    bool collapse(Row const& row);
    [[nodiscard]] bool isExpanded(PropertyGridRow const& row) const;

    /// What the visible rows are, as plain records.
    [[nodiscard]] std::vector<PropertyGridRowRecord> records() const;
    /// One line per visible row, indented by depth: "+" before a collapsed and "-" before an expanded row,
    /// the name, the check box, the value, and in braces how it can be edited and how it looks.
    [[nodiscard]] std::string dump() const;

    /// Makes \p row current, unfolding what it stands below, for the owner of the rows.
    void showRow(PropertyGridRow& row);
    void countLayout() { ++m_layoutCount; }
    /// How often the rows have been laid out.
    [[nodiscard]] int getLayoutCount() const { return m_layoutCount; }

protected:
    [[nodiscard]] std::string dumpContent() const override { return dump(); }

private:
    using Input = PropertyGridEditResult (*)(PropertyGridRow& row, std::string_view text);

    bool drive(Row const& row, Input input, std::string_view text);
    void makeCurrent(PropertyGridRow& row);
    [[nodiscard]] bool isReachableRow(Row const& row) const;
    [[nodiscard]] bool isShown(PropertyGridRow const& row) const;
    bool setExpanded(Row const& row, bool expanded);

    std::shared_ptr<PropertyGridModel> m_model = std::make_shared<PropertyGridModel>();
    /// The names down to each collapsed row.
    std::set<std::vector<std::string>> m_collapsed;
    /// The names down to the current row; empty while there is none.
    std::vector<std::string> m_current;
    std::string m_message;
    int m_layoutCount = 0;
};

} // namespace qev::ui
