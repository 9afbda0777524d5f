#pragma once

#include "Edit/ObjectPropertyEditController.h"

#include <functional>
#include <memory>

namespace qev::ui::edit {

/// The controller inside a `PropertyGridObjectEditor`: hands everything on to the controller that knows the
/// kind of objects that are shown.
class HOSTEDIT_EXPORT GridEditController final : public ObjectPropertyEditController
{
public:
    using ReloadFunction = std::function<void(PropertyId const& id)>;

    /// \p controller may be null: then nothing happens around edits. \p reload reads the rows again.
    GridEditController(std::shared_ptr<ObjectPropertyEditControllerBase> controller, ReloadFunction reload);
    ~GridEditController() override;

    /// Gives both controllers their owner and their objects.
    void connect(std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> const& owner,
                 EditedObjects const& editedObjects, EditedObjects const& writableObjects);

    void reloadProperty(PropertyId id) override;

    bool hasEnumeratedValues(PropertyId const& id) const override;
    std::vector<EnumeratedValue> getEnumeratedValues(PropertyId const& id) const override;
    void onButtonClicked(PropertyId const& id, std::string const& key) override;
    OnPropertyChangedAction getOnPropertyChangedAction(PropertyId const& id) const override;
    void onPropertyChanged(PropertyId const& id, PropertyValue const& value) override;
    void onPropertyChangedAfterObjectRegen(PropertyId const& id, PropertyValue const& value) override;
    void onAfterPropertyUpdated(PropertyId const& id) override;
    bool onRequestToResetPropertyLocalValue(PropertyId const& id) override;
    void onAfterResetPropertyLocalValue(PropertyId const& id) override;
    void onResetPropertyLocalValueAfterObjectRegen(PropertyId const& id) override;
    void onPropertySelected(PropertyId const& id) override;
    void onPropertyDeselected(PropertyId const& id) override;

private:
    std::shared_ptr<ObjectPropertyEditControllerBase> m_controller;
    ReloadFunction m_reload;
};

} // namespace qev::ui::edit
