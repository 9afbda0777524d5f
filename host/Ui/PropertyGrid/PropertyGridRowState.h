#pragma once

#include "Core/Attribute/Colour.h"
#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridRowButton.h"
#include "Ui/Window/CheckState.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridButton.h"
#include "Ui/Window/Controls/PropertyGridControl/ValueDisplayMode.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui {

/// One entry of a row's drop list.
struct PropertyGridOption
{
    std::string text;
    /// A disabled entry is shown and cannot be chosen.
    bool enabled = true;

    friend bool operator==(PropertyGridOption const&, PropertyGridOption const&) = default;
};

/// How a row's value reads from side to side.
enum class PropertyGridAlignment : int
{
    Left = 0,
    Right = 1,
};

/// Where a row has a line across the grid.
enum class PropertyGridHorizontalLine : int
{
    Above = 0,
    Below = 1,
    AboveAndBelow = 2,
};

/// What one row of a property grid holds, apart from its place in the tree: plain data, for any back end.
struct PropertyGridRowState
{
    enum class Kind
    {
        /// A header over other rows; no value.
        Group,
        Value,
        CheckBox,
        /// Nothing but height.
        EmptyLine,
    };

    enum class ValueKind
    {
        None,
        Text,
        Number,
    };

    Kind kind = Kind::Group;
    std::string name;
    /// By what the row is known in its grid when the rows are made anew; empty for a row that is known by its
    /// name and those of the rows above it.
    std::string key;
    std::string description;

    ValueKind valueKind = ValueKind::None;
    /// The value of a text row.
    std::string text;
    /// The value of a number row in internal units; nothing while the row is blank.
    std::optional<double> number;

    std::vector<PropertyGridOption> options;
    /// Only values from the drop list are taken.
    bool optionsOnly = false;
    bool allowEdit = true;
    bool enabled = true;
    /// The value is not shown.
    bool emptyState = false;
    /// What stands in grey where a value would, while there is none to show.
    std::string hint;
    /// The row stands for values that differ. It holds none of them, and blanking it is a change.
    bool isMixed = false;

    CheckState checkState = CheckState::Unchecked;
    ValueDisplayMode valueDisplayMode = ValueDisplayMode::BesideCheckBox;
    /// Blanking the row makes its check box undecided.
    bool canClearCheckBox = false;

    /// True for a row whose button belongs to its very kind.
    bool hasCustomButton = false;
    propertygridcontrol::button::VisibleState buttonVisibleState =
        propertygridcontrol::button::VisibleState::Hidden;
    std::shared_ptr<Image const> buttonImage;
    /// The buttons at the end of the row, from left to right.
    std::vector<PropertyGridRowButton> buttons;
    /// The value leads somewhere: a click on it presses the first button.
    bool isLink = false;
    /// The value is the object's own where it might be one that it takes over.
    bool isLocalValue = false;

    bool bold = false;
    std::optional<attr::Colour> textColour;
    std::optional<attr::Colour> backgroundColour;
    PropertyGridAlignment alignment = PropertyGridAlignment::Left;
    std::optional<PropertyGridHorizontalLine> horizontalLine;
    unsigned int nameIndentationInCharacters = 0;
};

} // namespace qev::ui
