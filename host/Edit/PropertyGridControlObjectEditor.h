#pragma once

#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"

namespace qev::ui::edit {

class ObjectPropertyEditControllerBase;

/// A property grid that edits objects: the owner of the controllers of what it shows.
class HOSTEDIT_EXPORT PropertyGridControlObjectEditor : public ObjectPropertyEditControllerOwnerInterface
{
public:
    /// The controller inside the grid, an `ObjectPropertyEditController`; null before objects are shown.
    virtual ObjectPropertyEditControllerBase* getControllerNonConst() = 0;
};

} // namespace qev::ui::edit
