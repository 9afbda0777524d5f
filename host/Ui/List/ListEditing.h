#pragma once

#include "HostUiExport.h"
#include "Ui/List/ListBlock.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// Why a cell did not take an input.
enum class ListRefusalReason
{
    /// The owner lets nobody edit the cell.
    NotEditable,
    /// The text is none of the entries that the cell can have.
    NotAnEntry,
    /// The owner did not take the text, as it is no value for the cell.
    NotTaken,
};

/// A cell that did not take an input.
struct ListRefusal
{
    ListControl::ItemInfo item;
    ListRefusalReason reason = ListRefusalReason::NotEditable;
    /// What was to be put into it.
    std::string text;

    friend bool operator==(ListRefusal const&, ListRefusal const&) = default;
};

/// What became of an input to cells. A cell that says already what was put into it is neither taken nor
/// refused.
struct ListEditResult
{
    /// How many cells took it.
    std::size_t takenCells = 0;
    /// By row, then by column.
    std::vector<ListRefusal> refusals;
};

/// Cells that are being edited.
struct ListEdit
{
    std::vector<ListControl::ItemInfo> items;
    /// What the owner answered: the kind of editor and the entries of its list.
    ListControl::LabelEditBeginResultParams editor;
    /// What the editor opens with: the text of the cells, or nothing when they differ.
    std::string text;
};

/// What input to the cells of a list means, the same for every back end: it asks the owner through the events
/// of the list, and keeps nothing itself.
///
/// Rows and columns are those of the owner; where a back end shows them in another order, it names them in
/// that order. What one input does to several cells is one edit for the user.
class HOSTUI_EXPORT ListEditing
{
public:
    using Items = std::vector<ListControl::ItemInfo>;

    explicit ListEditing(std::shared_ptr<ListControl> list)
        : m_list(std::move(list))
    {
    }

    /// Asks how \p items, cells of one column, can be edited together. Nothing when one of them cannot.
    [[nodiscard]] std::optional<ListEdit> begin(Items items) const;
    /// Ends an edit with a text. Where nobody changed what the editor opened with, nothing is written. Of a
    /// list the text has to be an entry, unless the list takes other texts; an empty one takes the value
    /// away.
    ListEditResult commitText(ListEdit const& edit, std::string_view text) const;
    /// Ends an edit with an entry of its list. An index past the end is refused.
    ListEditResult commitChoice(ListEdit const& edit, std::size_t index) const;
    void cancel(ListEdit const& edit) const;

    /// The text of a cell for other programs. Of a check box alone it is "TRUE" or "FALSE".
    [[nodiscard]] std::string getCopyText(ListControl::ItemInfo const& item) const;
    /// The texts of cells, with the headers of the columns as the first row if asked for.
    [[nodiscard]] ListBlock copy(std::vector<std::size_t> const& rows,
                                 std::vector<std::size_t> const& columns, bool withHeaders) const;

    /// What an editor of a cell opens with.
    [[nodiscard]] std::string getEditText(ListControl::ItemInfo const& item) const;
    /// Tells if a cell has the value \p text already, as it is shown or with all its digits.
    [[nodiscard]] bool says(ListControl::ItemInfo const& item, std::string const& text) const;

    /// Why a cell would not take \p text; nothing when it would, or says it already. Writes nothing.
    [[nodiscard]] std::optional<ListRefusalReason> findRefusal(ListControl::ItemInfo const& item,
                                                               std::string const& text) const;

    /// Puts \p text into each of \p items, of any columns, that can be edited. A check box alone takes
    /// "TRUE", "FALSE", "1" and "0".
    ListEditResult setText(Items const& items, std::string const& text) const;
    /// Takes the values of \p items away.
    ListEditResult clear(Items const& items) const { return setText(items, {}); }
    /// Puts the values of the first of \p rows into the others.
    ListEditResult fillDown(std::vector<std::size_t> const& rows,
                            std::vector<std::size_t> const& columns) const;
    /// Puts \p block into the cells where \p rows and \p columns meet, from their first on; what does not fit
    /// is left out. A block of one cell goes into all of them.
    ListEditResult paste(std::vector<std::size_t> const& rows, std::vector<std::size_t> const& columns,
                         ListBlock const& block) const;

    /// Asks for the other state of the first of \p items, for all of them. A box that is neither checked
    /// nor unchecked becomes checked.
    ListEditResult clickCheckBoxes(Items const& items) const;
    /// The state of a cell's check box; nothing for a cell without one.
    [[nodiscard]] std::optional<CheckState> getCheckState(ListControl::ItemInfo const& item) const;

private:
    /// What the owner answers, as the column has it edited.
    [[nodiscard]] ListControl::LabelEditBeginResultParams askEditor(Items const& items) const;
    /// Puts \p text into cells of one column.
    void setTextInColumn(Items const& items, std::string const& text, ListEditResult& result) const;
    void setCheckStates(Items const& items, CheckState state, ListEditResult& result) const;
    [[nodiscard]] std::optional<ListRefusalReason> findBoxRefusal(ListControl::ItemInfo const& item,
                                                                  std::string const& text) const;
    [[nodiscard]] bool wouldTake(ListEdit const& edit, std::string_view text,
                                 std::optional<std::size_t> selectedIndex) const;
    /// Tells if a check box alone shows an unchecked state only because the cell has no value.
    [[nodiscard]] bool isUnsetBox(ListControl::ItemInfo const& item) const;
    [[nodiscard]] bool isCheckBoxAlone(std::size_t column) const;
    [[nodiscard]] std::string getCommonEditText(Items const& items) const;
    void end(ListEdit const& edit, std::string_view text, std::optional<std::size_t> selectedIndex,
             ListEditResult& result) const;

    std::shared_ptr<ListControl> m_list;
};

} // namespace qev::ui
