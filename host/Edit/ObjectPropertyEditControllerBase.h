#pragma once

#include "HostEditExport.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui::edit {

class EditedObject;
class ObjectPropertyEditControllerOwnerInterface;

/// The base of the controllers behind the generic property grid: what happens around an edit, a click on a
/// button and the selection of a row. Here nothing happens.
///
/// Ownership: the controller keeps the edited objects, but not its owner.
class HOSTEDIT_EXPORT ObjectPropertyEditControllerBase
{
public:
    using PropertyId = object::PropertyId;
    using PropertyValue = object::PropertyValue;
    /// Edited objects in the order in which they were selected, each of them once.
    using EditedObjects = std::vector<std::shared_ptr<EditedObject>>;

    /// One of the values that a property may have.
    struct EnumeratedValue
    {
        /// What the user sees.
        std::string text;
        /// What is written; the text itself where there is none.
        std::optional<object::PropertyValue> value;

        friend bool operator==(EnumeratedValue const&, EnumeratedValue const&) = default;
    };

    /// What the editor does after it has written a value.
    enum OnPropertyChangedAction
    {
        /// The row alone is drawn again.
        RedrawProperty = 0,
        /// All rows are read again.
        ReloadProperties = 1,
        /// The object is regenerated.
        RegenerateObject = 2,
        /// The object is regenerated, and all rows are read again.
        RegenerateObjectAndReloadProperties = 3,
    };

    ObjectPropertyEditControllerBase();
    virtual ~ObjectPropertyEditControllerBase();
    ObjectPropertyEditControllerBase(ObjectPropertyEditControllerBase const&) = delete;
    ObjectPropertyEditControllerBase& operator=(ObjectPropertyEditControllerBase const&) = delete;

    /// Whether the property takes one of certain values.
    virtual bool hasEnumeratedValues(PropertyId const& id) const;
    /// These values, in the order in which they are offered.
    virtual std::vector<EnumeratedValue> getEnumeratedValues(PropertyId const& id) const;
    /// \p key is the key of the clicked button.
    virtual void onButtonClicked(PropertyId const& id, std::string const& key);
    virtual OnPropertyChangedAction getOnPropertyChangedAction(PropertyId const& id) const;
    /// Called right after \p value has been written.
    virtual void onPropertyChanged(PropertyId const& id, PropertyValue const& value);
    /// Called once the object has been regenerated after that.
    virtual void onPropertyChangedAfterObjectRegen(PropertyId const& id, PropertyValue const& value);
    virtual void onAfterPropertyUpdated(PropertyId const& id);
    /// Whether the value may be taken from where it is inherited again; true unless overridden.
    virtual bool onRequestToResetPropertyLocalValue(PropertyId const& id);
    /// Called right after that has been done.
    virtual void onAfterResetPropertyLocalValue(PropertyId const& id);
    /// Called once the object has been regenerated after that.
    virtual void onResetPropertyLocalValueAfterObjectRegen(PropertyId const& id);
    virtual void onPropertySelected(PropertyId const& id);
    virtual void onPropertyDeselected(PropertyId const& id);

    [[nodiscard]] std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> const& getOwner() const
    {
        return m_owner;
    }
    void setOwner(std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> owner);

    [[nodiscard]] EditedObjects const& getEditedObjects() const { return m_editedObjects; }
    [[nodiscard]] EditedObjects const& getWritableObjects() const { return m_writableObjects; }
    /// \p writableObjects are those of \p editedObjects that may be changed.
    void setObjects(EditedObjects editedObjects, EditedObjects writableObjects);

private:
    std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> m_owner;
    EditedObjects m_editedObjects;
    EditedObjects m_writableObjects;
};

} // namespace qev::ui::edit
