#pragma once

#include "HostEditExport.h"

#include <memory>
#include <string>

namespace qev {
class Guid;
}

namespace qev::ui {
class Dialog;
}

namespace qev::ui::edit {

/// What a controller asks of whoever shows the editor.
class HOSTEDIT_EXPORT ObjectPropertyEditControllerOwnerInterface
{
public:
    ObjectPropertyEditControllerOwnerInterface() = default;
    virtual ~ObjectPropertyEditControllerOwnerInterface();
    ObjectPropertyEditControllerOwnerInterface(ObjectPropertyEditControllerOwnerInterface const&) = delete;
    ObjectPropertyEditControllerOwnerInterface&
    operator=(ObjectPropertyEditControllerOwnerInterface const&) = delete;

    /// The model has changed: marks the edited objects as changed, and makes anew what depends on them. The
    /// controller that calls is still at work, and must not be destroyed before this returns.
    virtual void onObjectsEdited() = 0;
    /// Opens a path or an address with the program that the system has for it.
    virtual void openExternalReference(std::string const& reference) = 0;
    /// Selects the object of that global id.
    virtual void goToObject(Guid const& globalId) = 0;
    /// Whether the action on the selected reference can be used.
    virtual void setReferenceActionEnabled(bool enabled) = 0;
    /// No single reference is selected.
    virtual void clearSelectedReference() = 0;
    /// The path or address that the selected property holds.
    virtual void setSelectedReference(std::string const& reference) = 0;
    /// The dialog that popups stand over, and which keeps their settings; null where there is none.
    virtual std::shared_ptr<Dialog> getPopupParentWindow() = 0;
    /// Reads the edited properties again and draws them.
    virtual void updateView() = 0;
};

} // namespace qev::ui::edit
