#include "UI/FoundationClasses/FcEditController.h"

#include "Format/Ifc/Model/PropertySetMapping.h"
#include "Format/Ifc/Schema/Xml/Def.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "UI/FoundationClasses/Controllers/AddPropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/AddPsetPopupController.h"
#include "UI/FoundationClasses/FcEditControllerDetails.h"

namespace qev::fc::ui::edit {

using core::kernel::FcPropertySetDefinition;

namespace {

constexpr char addPropertyPopupId[] = "FcEditController.addPropertyPopup";

/// Adds those of \p definitions that the set lacks.
void addMissing(std::vector<ifc::def::xml::Def const*> const& definitions, FcPropertySetDefinition& set)
{
    for (auto const* const definition : definitions) {
        if (!set.hasProperty(definition->name))
            ifc::addSchemaDefToPropertySetDefinition(*definition, set);
    }
}

} // namespace

void FcEditController::addPsetClicked(PropertyId id)
{
    auto const owner = getOwner().lock();
    auto control = createListPopupControl("FcEditController.addPsetPopup", owner);
    if (!control)
        return;
    auto const objects = getFcObjectsBeingEdited<core::kernel::FcObjectDefinition>(id);
    m_addPsetPopup = std::make_unique<AddPsetPopupController>(objects);
    std::optional<qev::ui::Position> position;
    if (control->getControl())
        position = control->getControl()->getPositionOnScreen();
    m_addPsetPopup->attachToControl(std::move(control));
    m_addPsetPopup->show([this, objects, id, position](ifc::def::xml::SetDef const& definition) {
        onPsetChosen(definition, objects, id, position);
    });
}

void FcEditController::onPsetChosen(ifc::def::xml::SetDef const& definition, Objects const& objects,
                                    PropertyId const& id, std::optional<qev::ui::Position> position)
{
    m_addPropertyPopup = std::make_unique<AddPropertyPopupController>();
    m_addPropertyPopup->setPsetName(definition.name);
    m_addPropertyPopup->fillItems(definition);
    m_addPropertyPopup->attachToControl(
        createListPopupControl(addPropertyPopupId, getOwner().lock(), position));
    m_addPropertyPopup->show(
        [this, objects, &definition, id](std::vector<ifc::def::xml::Def const*> const& chosen) {
            {
                EditStep const step(getFcData(), "Add property set");
                for (auto const& object : objects) {
                    if (auto const set = ifc::addXmlSetDefToFcObjectDefinition(definition, *object))
                        addMissing(chosen, *set);
                }
            }
            reloadAndNotify(id);
            m_addPropertyPopup.reset();
        });
    // Last, for this runs inside the callback of that popup, which holds the arguments.
    m_addPsetPopup.reset();
}

void FcEditController::addPsetValueClicked(PropertyId id)
{
    auto const owner = getOwner().lock();
    auto control = createListPopupControl(addPropertyPopupId, owner);
    if (!control)
        return;
    auto const sets = getFcObjectsBeingEdited<FcPropertySetDefinition>(id);
    m_addPropertyPopup = std::make_unique<AddPropertyPopupController>(sets);
    m_addPropertyPopup->attachToControl(std::move(control));
    m_addPropertyPopup->show([this, sets, id](std::vector<ifc::def::xml::Def const*> const& chosen) {
        {
            EditStep const step(getFcData(), "Add properties");
            for (auto const& set : sets)
                addMissing(chosen, *set);
        }
        reloadAndNotify(id);
        m_addPropertyPopup.reset();
    });
}

void FcEditController::deletePsetsClicked(PropertyId id)
{
    auto const data = getFcData();
    if (!data)
        return;
    {
        EditStep const step(data, "Delete property set");
        for (auto const& set : withoutRepetitions(getFcObjectsBeingEdited<FcPropertySetDefinition>(id)))
            set->deletePset(*data);
    }
    reloadAndNotify(id);
}

} // namespace qev::fc::ui::edit
