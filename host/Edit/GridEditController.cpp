#include "Edit/GridEditController.h"

#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"

#include <utility>

namespace qev::ui::edit {

GridEditController::GridEditController(std::shared_ptr<ObjectPropertyEditControllerBase> controller,
                                       ReloadFunction reload)
    : m_controller(controller ? std::move(controller) : std::make_shared<ObjectPropertyEditControllerBase>())
    , m_reload(std::move(reload))
{
}

GridEditController::~GridEditController() = default;

void GridEditController::connect(std::weak_ptr<ObjectPropertyEditControllerOwnerInterface> const& owner,
                                 EditedObjects const& editedObjects, EditedObjects const& writableObjects)
{
    setOwner(owner);
    setObjects(editedObjects, writableObjects);
    m_controller->setOwner(owner);
    m_controller->setObjects(editedObjects, writableObjects);
}

void GridEditController::reloadProperty(PropertyId id) { m_reload(id); }

bool GridEditController::hasEnumeratedValues(PropertyId const& id) const
{
    return m_controller->hasEnumeratedValues(id);
}

std::vector<GridEditController::EnumeratedValue>
GridEditController::getEnumeratedValues(PropertyId const& id) const
{
    return m_controller->getEnumeratedValues(id);
}

void GridEditController::onButtonClicked(PropertyId const& id, std::string const& key)
{
    m_controller->onButtonClicked(id, key);
}

GridEditController::OnPropertyChangedAction
GridEditController::getOnPropertyChangedAction(PropertyId const& id) const
{
    return m_controller->getOnPropertyChangedAction(id);
}

void GridEditController::onPropertyChanged(PropertyId const& id, PropertyValue const& value)
{
    m_controller->onPropertyChanged(id, value);
}

void GridEditController::onPropertyChangedAfterObjectRegen(PropertyId const& id, PropertyValue const& value)
{
    m_controller->onPropertyChangedAfterObjectRegen(id, value);
}

void GridEditController::onAfterPropertyUpdated(PropertyId const& id)
{
    m_controller->onAfterPropertyUpdated(id);
}

bool GridEditController::onRequestToResetPropertyLocalValue(PropertyId const& id)
{
    return m_controller->onRequestToResetPropertyLocalValue(id);
}

void GridEditController::onAfterResetPropertyLocalValue(PropertyId const& id)
{
    m_controller->onAfterResetPropertyLocalValue(id);
}

void GridEditController::onResetPropertyLocalValueAfterObjectRegen(PropertyId const& id)
{
    m_controller->onResetPropertyLocalValueAfterObjectRegen(id);
}

void GridEditController::onPropertySelected(PropertyId const& id) { m_controller->onPropertySelected(id); }

void GridEditController::onPropertyDeselected(PropertyId const& id)
{
    m_controller->onPropertyDeselected(id);
}

} // namespace qev::ui::edit
