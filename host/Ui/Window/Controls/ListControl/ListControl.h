#pragma once

#include "Core/Attribute/Colour.h"
#include "Ui/Window/CheckState.h"
#include "Ui/Window/Controls/ListControl/ListControlHeader.h"
#include "Ui/Window/Controls/ListControl/ListControlInterface.h"
#include "Ui/Window/DialogControl.h"
#include "Ui/Window/PopupMenu.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// A list of rows and columns that keeps no texts: it asks for each cell as it paints.
///
/// Without a platform side its operations report "List control interface not set." and do nothing.
class HOSTUI_EXPORT ListControl : public DialogControl
{
public:
    /// Values of `style` that a list is created with.
    enum StyleFlag : unsigned int
    {
        /// A popup: no frame, and it stands over other windows.
        PopupStyle = 0x01,
        /// Rows with columns and a header that stays in view.
        ReportStyle = 0x02,
        /// Rows with columns, as a popup has them.
        PopupReportStyle = 0x04,
        /// A thin line around the list.
        BorderStyle = 0x20,
    };

    /// Flags of `addStyleFlags`. Which cells can be edited is for `onLabelEditBegin` alone to say.
    enum LabelEditFlag : unsigned int
    {
        /// Goes with `EditLabels`, and adds nothing: F2 and typing edit the current cell of any list.
        EditByKey = 1,
        /// A popup is a table whose cells are selected and edited one by one, and not a menu of its rows.
        EditLabels = 2,
        /// Tab in an editor goes on to the next cell that can be edited, and edits it.
        EditNextByTab = 8,
    };

    /// Values of `LabelEditBeginResultParams::editType`.
    enum EditType : unsigned int
    {
        NoEdit = 0,
        EditBox = 1,
        DropList = 4,
        /// A drop list that takes other texts too.
        DropDown = 5,
    };

    /// Values of the mode of `enableColumnCheckBoxes`.
    enum CheckBoxMode : int
    {
        BoxWithValue = 0,
        BoxAlone = 2,
    };

    /// Names a cell, or a row.
    struct ItemInfo
    {
        /// The row.
        std::optional<std::size_t> item;
        std::optional<std::size_t> column;

        friend bool operator==(ItemInfo const&, ItemInfo const&) = default;
    };

    /// How the text of a cell looks.
    struct ItemStyle
    {
        enum Flag : unsigned int
        {
            Emphasis = 1,
        };

        std::optional<attr::Colour> textColour;
        unsigned int flags = 0;

        friend bool operator==(ItemStyle const&, ItemStyle const&) = default;
    };

    /// What is about to be edited.
    struct HOSTUI_EXPORT LabelEditBeginParams
    {
        std::vector<ItemInfo> items;

        /// The one item. Reports "Should only be called when editing ONE item." when there are several,
        /// and gives the first; an empty item when there is none.
        [[nodiscard]] ItemInfo getItemToEdit() const;
    };

    /// How it may be edited.
    struct LabelEditBeginResultParams
    {
        /// An `EditType`.
        unsigned int editType = NoEdit;
        /// The entries of the list.
        std::vector<std::string> items;

        friend bool operator==(LabelEditBeginResultParams const&,
                               LabelEditBeginResultParams const&) = default;
    };

    /// The selected index of an edit that leaves the cell without a value.
    static constexpr std::size_t noSelection = static_cast<std::size_t>(-1);

    /// How the edit ended.
    struct HOSTUI_EXPORT LabelEditEndParams
    {
        bool accepted = false;
        std::vector<ItemInfo> items;
        /// An `EditType`.
        unsigned int editType = NoEdit;
        std::string text;
        /// Of a list; `noSelection` asks to take the value away.
        std::size_t selectedIndex = 0;
        bool hasSelection = false;
        /// Where the owner notes the items that did not take the value; null when nobody asks.
        std::shared_ptr<std::vector<ItemInfo>> refusedItems;

        /// Notes that \p item did not take the value.
        void refuse(ItemInfo const& item) const;
        /// The column of the first item. Reports "No items are being edited." and gives 0 when there is none.
        [[nodiscard]] std::size_t getColumnIndex() const;
        /// The text. Reports "This is a drop list label edit control: Call iDropIndSelected() instead."
        /// for a drop list.
        [[nodiscard]] std::string const& getEditBoxText() const;
        /// The chosen entry. Reports "Not a drop down or drop list control." for other edit types, and
        /// "Nothing was selected in the drop down, i.e. a new text was written." when that is so.
        [[nodiscard]] std::size_t getSelectedDropListIndex() const;
        /// The one item. Reports "Should only be called for column for which editing several items is not
        /// allowed." when there are several, and gives the first; an empty item when there is none.
        [[nodiscard]] ItemInfo getEditedItem() const;
    };

    [[nodiscard]] static char const* getClassName() { return "ListControl"; }

    /// Says how many rows and columns there are, and has the titles of the columns asked for. With no columns
    /// at all, everything that was said of columns is forgotten: check boxes, combo boxes, and which are
    /// hidden. How the user has arranged them stays for columns of the same titles.
    void setItemAndColumnCounts(std::size_t rows, std::size_t columns);
    [[nodiscard]] std::size_t getItemCount() const;
    [[nodiscard]] std::size_t getColumnCount() const;
    /// Repaints one row.
    void redrawItem(std::size_t row);
    /// The selected rows, ascending.
    [[nodiscard]] std::vector<std::size_t> getSelectedItems() const;
    /// Puts check boxes in a column. \p mode is a `CheckBoxMode`; null images mean the usual look.
    void enableColumnCheckBoxes(std::size_t column, int mode, std::shared_ptr<Image const> checkedImage,
                                std::shared_ptr<Image const> uncheckedImage);
    /// The `CheckBoxMode` of a column; nothing for a column without check boxes.
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const;
    /// Label edit of the column is a combo box: where the owner answers with an edit box, one that takes any
    /// text beside the entries. Reports "Only applies to report style controls." for others.
    void activateComboBoxEditingForColumn(std::size_t column);
    [[nodiscard]] bool isComboBoxColumn(std::size_t column) const;
    [[nodiscard]] bool isUsingReportStyle() const;
    /// Adds all `LabelEditFlag`s. Reports "Only applies to report style controls." for others, and does
    /// nothing then.
    void enableLabelEdit();
    /// Begins to edit a cell as if the user had asked for it. The row may be the one below the last,
    /// for an owner that adds an entry when the edit ends.
    void startLabelEdit(std::size_t row, std::size_t column = 0);
    /// Adds `LabelEditFlag`s to those there are.
    void addStyleFlags(unsigned int flags);
    [[nodiscard]] ListControlHeader& getHeader() { return m_header; }

    /// The arrangement the user has made, and back.
    [[nodiscard]] ListControlSettings getSettings() const;
    void loadSettings(ListControlSettings const& settings);

    /// A row is opened: a double click where nothing can be edited, or Ctrl+Return; in a popup that is a menu
    /// of rows a click, or Return.
    EventHandlerContainer<Window, void, ItemInfo const&> onItemActivated;
    /// A row is asked about by the other gesture: a click with the middle button.
    EventHandlerContainer<Window, void, ItemInfo const&> onItemSecondaryEvent;
    EventHandlerContainer<Window, std::string, std::size_t> onGetColumnHeaderText;
    EventHandlerContainer<Window, std::string, ItemInfo const&> onGetItemText;
    /// The text that an editor of the cell opens with: numbers with all their digits, "TRUE" and "FALSE" for
    /// a check box alone, and empty for a cell without a value. Without a handler it is the text of the cell.
    EventHandlerContainer<Window, std::string, ItemInfo const&> onGetItemEditText;
    /// The number that the text of the cell stands for, to sort by; nothing for a cell that shows none.
    EventHandlerContainer<Window, std::optional<double>, ItemInfo const&> onGetItemNumber;
    EventHandlerContainer<Window, std::optional<attr::Colour>, ItemInfo const&> onGetItemBackgroundColour;
    EventHandlerContainer<Window, ItemStyle, ItemInfo const&> onGetItemStyle;
    /// A check box was clicked; the state is the one asked for.
    EventHandlerContainer<Window, void, ItemInfo const&, CheckState> onCheckBoxClicked;
    /// The state of a cell's check box; no state means no box. The owner counts on having been asked for the
    /// text of the cell just before.
    EventHandlerContainer<Window, std::optional<CheckState>, ItemInfo const&> onGetCheckState;
    EventHandlerContainer<Window, bool, ItemInfo const&> onDoesItemContainLocalValue;
    EventHandlerContainer<Window, void, std::vector<std::size_t> const&, std::size_t>
        onResetItemsToGlobalValues;
    /// Tells if the user cannot change a cell. Its check box is grey then, and clicks on it do nothing.
    EventHandlerContainer<Window, bool, ItemInfo const&> onIsItemReadOnly;
    /// Several edits follow that make one for the user. What the owner returns is held until they are done.
    EventHandlerContainer<Window, std::shared_ptr<void>> onEditsBegin;
    EventHandlerContainer<Window, LabelEditBeginResultParams, LabelEditBeginParams const&> onLabelEditBegin;
    EventHandlerContainer<Window, void, LabelEditEndParams const&> onLabelEditEnd;
    /// Tells if all items would take the value of an edit that ended like this. Nothing is written. Of a
    /// check box alone the text is "TRUE" or "FALSE". Without a handler any value is expected to be taken.
    EventHandlerContainer<Window, bool, LabelEditEndParams const&> onWouldTakeLabelEdit;
    /// Tells if the user may hide and show a column.
    EventHandlerContainer<Window, bool, std::size_t> onQueryColumn;
    /// A context menu is to be filled.
    EventHandlerContainer<Window, void, ItemInfo const&, PopupMenu&> onContextMenu;
    /// The entry of that index was chosen from the context menu.
    EventHandlerContainer<Window, void, ItemInfo const&, int> onContextMenuCommand;

protected:
    void setInterface(WindowInterface& windowInterface) override;
    void resetInterface() override;
    [[nodiscard]] bool isCompatibleWith(WindowClass windowClass) const override;

private:
    [[nodiscard]] ListControlInterface* requireListInterface(std::string_view operation) const;

    ListControlInterface* m_listInterface = nullptr;
    ListControlHeader m_header;
};

} // namespace qev::ui
