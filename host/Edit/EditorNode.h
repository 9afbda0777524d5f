#pragma once

#include "Edit/Property.h"
#include "Edit/ShownObject.h"

#include <vector>

namespace qev::ui::edit {

/// One row that all shown objects have, with the rows below it.
struct HOSTEDIT_EXPORT EditorNode
{
    /// The row as the first object has it, under the id by which the objects answer; without children.
    Property property;
    /// False for a heading that stands over rows of all objects, but which not all of them have themselves.
    bool isShared = true;
    std::vector<EditorNode> children;

    /// The tree of rows that all \p objects have on \p level, in the order of the first; empty without
    /// objects.
    ///
    /// Rows that an object has beyond its configuration stand below the row whose id begins theirs.
    [[nodiscard]] static std::vector<EditorNode> makeTree(ShownObjects const& objects,
                                                          EditorLevel const& level);
};

} // namespace qev::ui::edit
