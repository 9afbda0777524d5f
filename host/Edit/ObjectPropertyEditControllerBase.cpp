#include "Edit/ObjectPropertyEditControllerBase.h"

#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"

#include <utility>

namespace qev::ui::edit {

ObjectPropertyEditControllerBase::ObjectPropertyEditControllerBase() = default;

ObjectPropertyEditControllerBase::~ObjectPropertyEditControllerBase() = default;

bool ObjectPropertyEditControllerBase::hasEnumeratedValues(PropertyId const&) const { return false; }

std::vector<ObjectPropertyEditControllerBase::EnumeratedValue>
ObjectPropertyEditControllerBase::getEnumeratedValues(PropertyId const&) const
{
    return {};
}

void ObjectPropertyEditControllerBase::onButtonClicked(PropertyId const&, std::string const&) {}

ObjectPropertyEditControllerBase::OnPropertyChangedAction
ObjectPropertyEditControllerBase::getOnPropertyChangedAction(PropertyId const&) const
{
    return RedrawProperty;
}

void ObjectPropertyEditControllerBase::onPropertyChanged(PropertyId const&, PropertyValue const&) {}

void ObjectPropertyEditControllerBase::onPropertyChangedAfterObjectRegen(PropertyId const&,
                                                                         PropertyValue const&)
{
}

void ObjectPropertyEditControllerBase::onAfterPropertyUpdated(PropertyId const&) {}

bool ObjectPropertyEditControllerBase::onRequestToResetPropertyLocalValue(PropertyId const&) { return true; }

void ObjectPropertyEditControllerBase::onAfterResetPropertyLocalValue(PropertyId const&) {}

void ObjectPropertyEditControllerBase::onResetPropertyLocalValueAfterObjectRegen(PropertyId const&) {}

void ObjectPropertyEditControllerBase::onPropertySelected(PropertyId const&) {}

void ObjectPropertyEditControllerBase::onPropertyDeselected(PropertyId const&) {}

void ObjectPropertyEditControllerBase::setOwner(
    std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> owner)
{
    m_owner = std::move(owner);
}

void ObjectPropertyEditControllerBase::setObjects(EditedObjects editedObjects, EditedObjects writableObjects)
{
    m_editedObjects = std::move(editedObjects);
    m_writableObjects = std::move(writableObjects);
}

} // namespace qev::ui::edit
