#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"

namespace qev::ui::edit {

/// The controller inside the grid of the generic object editor.
class HOSTEDIT_EXPORT ObjectPropertyEditController : public ObjectPropertyEditControllerBase
{
public:
    /// Reads the property and its neighbours again, and keeps the view at it. Rows that came or went with the
    /// property are added or removed. Nothing happens for a property that is not shown.
    virtual void reloadProperty(PropertyId id) = 0;
};

} // namespace qev::ui::edit
