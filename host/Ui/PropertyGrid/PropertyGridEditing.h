#pragma once

#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qev::ui {

/// How the value of a row can be changed.
enum class PropertyGridEditor
{
    None,
    Text,
    Number,
    /// From the drop list; `PropertyGridEditing::canTypeFreely` tells if other texts are taken too.
    Choice,
    CheckBox,
    /// A check box, and beside it a value with an editor of its own: `PropertyGridEditing::getValueEditor`.
    CheckBoxWithValue,
};

/// What became of an input.
struct PropertyGridEditResult
{
    bool accepted = false;
    /// For the user: why the input was refused. Empty when it was accepted.
    std::string message;
};

/// What rows show and what input to them means, the same for every back end.
///
/// An input that changes a row sets the row's value first and then runs the handlers: those of the
/// control after a changed value, those of the row after a click. The handlers may remove the row; whoever
/// calls holds it by `shared_ptr`. A text that the row holds already is accepted, changes nothing and runs
/// no handler; a number runs them always, as the zero of a row without a value is a number to be set.
/// An editor that nobody typed into is not an input. A row with an input check asks it before anything
/// changes.
class HOSTUI_EXPORT PropertyGridEditing
{
public:
    [[nodiscard]] static PropertyGridEditor getEditor(PropertyGridRow const& row);
    /// The editor of the row's value alone, leaving a check box aside.
    [[nodiscard]] static PropertyGridEditor getValueEditor(PropertyGridRow const& row);
    /// The name of an editor: "none", "text", "number", "choice", "check box" or "check box with value".
    [[nodiscard]] static char const* getEditorName(PropertyGridEditor editor);

    [[nodiscard]] static bool hasCheckBox(PropertyGridRow const& row);
    [[nodiscard]] static bool canClickCheckBox(PropertyGridRow const& row);
    [[nodiscard]] static bool hasVisibleButton(PropertyGridRow const& row);
    [[nodiscard]] static bool canPressButton(PropertyGridRow const& row);
    /// The place of the first button of that key; nothing when the row has none.
    [[nodiscard]] static std::optional<std::size_t> findButton(PropertyGridRow const& row,
                                                               std::string_view key);
    [[nodiscard]] static bool canFollowLink(PropertyGridRow const& row);
    /// True when a choice row takes texts that are not in its list.
    [[nodiscard]] static bool canTypeFreely(PropertyGridRow const& row);

    /// The text that the row shows for its value; empty when it shows none.
    [[nodiscard]] static std::string getDisplayedText(PropertyGridRow const& row);
    /// What the row shows in grey in place of a value; empty while it shows a value.
    [[nodiscard]] static std::string getHint(PropertyGridRow const& row);
    /// The text that an editor opens with: numbers with all their digits.
    [[nodiscard]] static std::string getEditorText(PropertyGridRow const& row);

    /// Takes \p text as typed into the row's editor and confirmed.
    static PropertyGridEditResult commitText(PropertyGridRow& row, std::string_view text);
    /// Takes the entry \p text of the row's drop list.
    static PropertyGridEditResult choose(PropertyGridRow& row, std::string_view text);
    /// Blanks the row's value; a check box that can be undecided becomes so.
    static PropertyGridEditResult clear(PropertyGridRow& row);
    /// Clicks the check box: checked becomes unchecked, anything else checked.
    static PropertyGridEditResult clickCheckBox(PropertyGridRow& row);
    static PropertyGridEditResult pressButton(PropertyGridRow& row);
    /// Presses one of the buttons at the end of the row.
    static PropertyGridEditResult pressButton(PropertyGridRow& row, std::size_t button);
    /// Goes where the value of a link leads.
    static PropertyGridEditResult followLink(PropertyGridRow& row);
};

} // namespace qev::ui
