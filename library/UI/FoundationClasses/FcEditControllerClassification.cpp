#include "UI/FoundationClasses/FcEditController.h"

#include "Classification/ClassificationUi.h"
#include "Core/Localization/Localize.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"
#include "UI/FoundationClasses/FcEditControllerDetails.h"
#include "Ui/Window/MessageBox.h"

namespace qev::fc::ui::edit {

using core::kernel::FcDefinitionSelect;
using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcTypeObject;
using qev::ui::MessageBox;
using resource::externalreference::FcClassificationReference;

namespace {

/// What the dialog is shown for: the first of the objects.
struct Classified
{
    explicit Classified(std::vector<std::shared_ptr<FcObjectDefinition>> const& objects)
        : first(objects.empty() ? nullptr : objects.front())
        , object(entityCast<FcObject>(first))
        , typeObject(entityCast<FcTypeObject>(first))
    {
    }

    /// The reference that the object has into the system; null when it has none.
    [[nodiscard]] std::shared_ptr<FcClassificationReference const>
    getClassification(classification::ClassificationInterface const& system) const
    {
        if (object)
            return object->getClassification(system);
        return typeObject ? typeObject->getClassification(system) : nullptr;
    }
    /// The codes that the user chooses; none when the user cancels.
    [[nodiscard]] std::vector<std::string> askForCodes(classification::ClassificationInterface& system,
                                                       std::string_view present) const
    {
        return classification::ui::showClassificationUi(system, object.get(), typeObject.get(), present);
    }

    std::shared_ptr<FcObjectDefinition> first;
    std::shared_ptr<FcObject> object;
    std::shared_ptr<FcTypeObject> typeObject;
};

void showMessage(std::string const& text)
{
    MessageBox::vShowOk(text,
                        qev::localize("ClassificationDefaultUI_AlreadyExist_Title", "FoundationClassesUi"),
                        MessageBox::Icon::Information, MessageBox::DefaultButton::First, {});
}

void classify(std::vector<std::shared_ptr<FcObjectDefinition>> const& objects,
              std::shared_ptr<classification::ClassificationInterface> const& system,
              std::vector<std::string> const& codes)
{
    for (auto const& object : objects)
        object->classify(system, codes);
}

} // namespace

void FcEditController::addClassificationClicked(PropertyId id)
{
    auto const objects = getFcObjectsBeingEdited<FcObjectDefinition>(id);
    m_addClassificationPopup = std::make_unique<AddClassificationPopupController>(
        std::vector<std::shared_ptr<FcObjectDefinition const>>(objects.begin(), objects.end()));
    popupClassificationClicked(
        id, getOwner().lock(), m_addClassificationPopup.get(),
        [this, objects, id](std::shared_ptr<classification::ClassificationInterface> const& system) {
            onClassificationChosen(system, objects, id);
        });
}

void FcEditController::popupClassificationClicked(PropertyId /*id*/, std::shared_ptr<Owner> owner,
                                                  AddClassificationPopupController* popup,
                                                  ClassificationCallback callback)
{
    auto control = createListPopupControl("FcEditController.addClassificationPopup", owner);
    if (!control)
        return;
    popup->attachToControl(std::move(control));
    if (callback)
        popup->show(std::move(callback));
}

void FcEditController::onClassificationChosen(
    std::shared_ptr<classification::ClassificationInterface> const& system, Objects const& objects,
    PropertyId const& id)
{
    Classified const classified(objects);
    if (auto const present = classified.getClassification(*system)) {
        showMessage(qev::localize("ClassificationDefaultUI_AlreadyExist", "FoundationClassesUi"));
        editClassificationClicked(
            PropertyId(std::string(classificationsId) + "." + present->getClassificationName()));
        return;
    }
    auto const codes = classified.askForCodes(*system, "");
    if (codes.empty())
        return;
    {
        EditStep const step(getFcData(), "Classify");
        classify(objects, system, codes);
    }
    clearCaches();
    reloadAndNotify(id);
}

void FcEditController::editClassificationClicked(PropertyId id)
{
    auto const references = getFcObjectsBeingEdited<FcClassificationReference>(id);
    if (references.empty())
        return;
    auto const present = references.front()->Identification.get();
    if (!present) {
        reportInController("editClassificationClicked", "No classification key found.");
        return;
    }
    auto const classification = references.front()->getReferencedClassification();
    if (!classification)
        return;
    std::string const key = classification->Name.get();
    auto const system = AddClassificationPopupController::getClassificationInterface(key);
    if (!system) {
        showMessage(qev::localize("ClassificationDefaultUI_NotInstalled", "FoundationClassesUi", {key}));
        return;
    }
    auto const objects = getFcObjectsBeingEdited<FcObjectDefinition>(PropertyId(classificationsId));
    auto const codes = Classified(objects).askForCodes(*system, *present);
    if (codes.empty())
        return;
    {
        EditStep const step(getFcData(), "Classify");
        deleteClassificationClicked(id);
        classify(objects, system, codes);
    }
    reloadAndNotify(id);
}

void FcEditController::deleteClassificationClicked(PropertyId id)
{
    auto const objects = getFcObjectsBeingEdited<FcObjectDefinition>(PropertyId(classificationsId));
    {
        EditStep const step(getFcData(), "Delete classification");
        for (auto const& reference : getFcObjectsBeingEdited<FcClassificationReference>(id)) {
            for (auto const& weakRelation : reference->ClassificationRefForObjects()) {
                auto const relation = weakRelation.lock();
                if (!relation)
                    continue;
                for (auto const& object : objects)
                    relation->eraseRelatedObjects(FcDefinitionSelect(object));
            }
        }
    }
    clearCaches();
    reloadAndNotify(id);
}

} // namespace qev::fc::ui::edit
