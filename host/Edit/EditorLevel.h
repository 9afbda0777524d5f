#pragma once

#include <string>

namespace qev::ui::edit {

/// One of the levels on which the generic object editor arranges rows, such as those of an occurrence and
/// those of its type.
struct EditorLevel
{
    /// Begins the ids of dynamic rows on this level.
    std::string name;

    /// What the shown objects hold themselves. Objects begin the ids of their dynamic rows with its name,
    /// which they know without being told.
    [[nodiscard]] static EditorLevel instance() { return {"Instance"}; }

    friend bool operator==(EditorLevel const&, EditorLevel const&) = default;
};

} // namespace qev::ui::edit
