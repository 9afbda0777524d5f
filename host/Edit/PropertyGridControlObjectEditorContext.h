#pragma once

namespace qev::ui::edit {

/// Where a generic object editor stands.
enum class PropertyGridControlObjectEditorContext : int
{
    /// Beside the model: it follows the selection.
    Panel,
    /// In a dialog of its own, over objects that stay the same.
    Dialog,
};

} // namespace qev::ui::edit
