#include "UI/FoundationClasses/FcEditController.h"

#include "Core/Id/Guid.h"
#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditController.h"
#include "Edit/ObjectPropertyEditControllerOwnerInterface.h"
#include "Edit/PropertyGridControlObjectEditor.h"
#include "FoundationClasses/Core/Kernel/FcRoot.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"
#include "UI/FoundationClasses/Controllers/AddPropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/AddPsetPopupController.h"
#include "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyEnumerationPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyTablePopupController.h"
#include "UI/FoundationClasses/FcEditControllerDetails.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace qev::fc::ui::edit {

using core::kernel::FcRoot;
using propertyinterface::FcPropertyWrapper;
using qev::ui::edit::ObjectPropertyEditController;
using qev::ui::edit::PropertyGridControlObjectEditor;

namespace {

/// The id that all popups keep their size under.
constexpr char popupSettingsId[] = "FcEditController_PopupControl";
constexpr int popupControlId = 10;

bool isEmpty(object::PropertyValue const& value)
{
    if (value.is<std::string>())
        return value.get<std::string>().empty();
    using Kind = object::PropertyValue::Kind;
    bool const mayBeUnset = value.kind() == Kind::OptionalBoolean || value.kind() == Kind::OptionalDouble ||
                            value.kind() == Kind::OptionalString;
    return mayBeUnset && value.isNullopt();
}

} // namespace

FcEditController::FcEditController() = default;

FcEditController::~FcEditController() = default;

// --- The objects ------------------------------------------------------------------------------------

std::vector<std::shared_ptr<FcPropertyWrapper const>> FcEditController::getEditedWrappers() const
{
    std::vector<std::shared_ptr<FcPropertyWrapper const>> wrappers;
    for (auto const& object : getEditedObjects()) {
        if (auto wrapper = std::dynamic_pointer_cast<FcPropertyWrapper const>(object->getPropertyInterface()))
            wrappers.push_back(std::move(wrapper));
    }
    return wrappers;
}

std::vector<std::shared_ptr<FcPropertyWrapper>> FcEditController::getWritableWrappers() const
{
    std::vector<std::shared_ptr<FcPropertyWrapper>> wrappers;
    for (auto const& object : getWritableObjects()) {
        if (auto wrapper =
                std::dynamic_pointer_cast<FcPropertyWrapper>(object->getWritablePropertyInterface()))
            wrappers.push_back(std::move(wrapper));
    }
    return wrappers;
}

std::shared_ptr<Data> FcEditController::getFcData() const
{
    std::shared_ptr<Data> common;
    bool isFirst = true;
    for (auto const& wrapper : getEditedWrappers()) {
        auto data = wrapper->getData();
        if (!isFirst && data != common)
            return nullptr;
        common = std::move(data);
        isFirst = false;
    }
    return common;
}

// --- Questions of the grid --------------------------------------------------------------------------

bool FcEditController::hasEnumeratedValues(PropertyId const& id) const
{
    auto const wrappers = getEditedWrappers();
    return std::any_of(wrappers.begin(), wrappers.end(),
                       [&id](auto const& wrapper) { return wrapper->hasEnumeratedValues(id); });
}

std::vector<FcEditController::EnumeratedValue>
FcEditController::getEnumeratedValues(PropertyId const& id) const
{
    auto const wrappers = getEditedWrappers();
    return wrappers.empty() ? std::vector<EnumeratedValue>() : wrappers.front()->getEnumeratedValues(id);
}

FcEditController::OnPropertyChangedAction
FcEditController::getOnPropertyChangedAction(PropertyId const&) const
{
    return RegenerateObjectAndReloadProperties;
}

// --- What happens in the grid -----------------------------------------------------------------------

void FcEditController::onPropertyChanged(PropertyId const&, PropertyValue const& value)
{
    if (!isEmpty(value))
        return;
    notifyObjectsEdited();
    clearCaches();
}

void FcEditController::onPropertyChangedAfterObjectRegen(PropertyId const&, PropertyValue const&) {}

void FcEditController::onAfterPropertyUpdated(PropertyId const&) {}

bool FcEditController::onRequestToResetPropertyLocalValue(PropertyId const&) { return true; }

void FcEditController::onAfterResetPropertyLocalValue(PropertyId const&) {}

void FcEditController::onResetPropertyLocalValueAfterObjectRegen(PropertyId const&) {}

void FcEditController::onPropertySelected(PropertyId const& id)
{
    std::optional<std::string> common;
    for (auto const& wrapper : getEditedWrappers()) {
        auto const reference = wrapper->getReference(id);
        auto const* const path = std::get_if<std::string>(&reference);
        if (!path)
            continue;
        if (common && *common != *path) {
            common.reset();
            break;
        }
        common = *path;
    }
    if (!common) {
        if (auto const owner = getOwner().lock())
            owner->clearSelectedReference();
        return;
    }
    if (auto const owner = getOwner().lock())
        owner->setSelectedReference(*common);
    // The owner may have ended over the first call.
    if (auto const owner = getOwner().lock())
        owner->setReferenceActionEnabled(true);
}

void FcEditController::onPropertyDeselected(PropertyId const&) {}

// --- Buttons ----------------------------------------------------------------------------------------

void FcEditController::onButtonClicked(PropertyId const& id, std::string const& key)
{
    if (dispatchButton(id, key))
        return;
    for (auto const& wrapper : getWritableWrappers())
        followReference(*wrapper, id);
}

bool FcEditController::dispatchButton(PropertyId const& id, std::string const& key)
{
    auto const& objects = getEditedObjects();
    auto const first =
        objects.empty()
            ? nullptr
            : std::dynamic_pointer_cast<FcPropertyWrapper const>(objects.front()->getPropertyInterface());
    if (!first)
        return false;
    auto const mappedId = std::get<PropertyId>(first->getMappedProperty(id)).text();
    bool const isBelowClassifications = id.text().starts_with(classificationsId);
    if (mappedId == "PropertySets")
        addPsetClicked(id);
    else if (mappedId == classificationsId)
        addClassificationClicked(id);
    else if (isBelowClassifications && key == "delete")
        deleteClassificationClicked(id);
    else if (isBelowClassifications && key == "edit")
        editClassificationClicked(id);
    else if (mappedId == "PropertySetDefinitionPsets") {
        if (key == "add")
            addPsetValueClicked(id);
        else if (key == "delete")
            deletePsetsClicked(id);
    } else if (mappedId == "Documents")
        addDocumentClicked(id);
    else
        return dispatchValueButton(mappedId, id, key);
    return true;
}

bool FcEditController::dispatchValueButton(std::string_view mappedId, PropertyId const& id,
                                           std::string const& key)
{
    bool const isEnumeration = mappedId == "EnumeratedValue";
    bool const isBounded = mappedId == "BoundedValue";
    bool const isList = mappedId == "ListValue";
    bool const isTable = mappedId == "TableValue";
    if (!isEnumeration && !isBounded && !isList && !isTable)
        return false;
    if (key == "delete")
        deletePropertyClicked(id);
    else if (isList && key == "add")
        addListValueClicked(id);
    else if (isEnumeration && key == "edit")
        editEnumerationValueClicked(id);
    else if (isBounded && key == "edit")
        editBoundedValueClicked(id);
    else if (isTable && key == "edit")
        editTableValueClicked(id);
    return true;
}

void FcEditController::followReference(FcPropertyWrapper const& wrapper, PropertyId const& id) const
{
    auto const reference = wrapper.getReference(id);
    if (auto const* const path = std::get_if<std::string>(&reference)) {
        if (auto const owner = getOwner().lock())
            owner->openExternalReference(*path);
    } else if (auto const* const entity = std::get_if<std::shared_ptr<FcBase const>>(&reference)) {
        auto const root = entityCast<FcRoot>(*entity);
        auto const owner = root ? getOwner().lock() : nullptr;
        if (owner)
            owner->goToObject(root->getGuid());
    } else
        reportInController("onButtonClicked::<lambda_1>::operator ()", "Reference type not implemented.");
}

// --- Around a change of the model -------------------------------------------------------------------

std::unique_ptr<FcEditController::ListPopupControl>
FcEditController::createListPopupControl(std::string popupId, std::shared_ptr<Owner> const& owner,
                                         std::optional<qev::ui::Position> position)
{
    if (!owner) {
        reportInController("createListPopupControl", "Could not get owner.");
        return nullptr;
    }
    auto popup = std::make_unique<ListPopupControl>(std::move(popupId));
    auto const parent = owner->getPopupParentWindow();
    auto const placement = popup->getControlPlacement(parent, popupSettingsId, position);
    popup->setControl(qev::ui::Window::create<qev::ui::ListControl>(
        parent,
        popup->getStyleFlags() | qev::ui::ListControl::PopupReportStyle | qev::ui::ListControl::BorderStyle,
        0, placement.placement, popupControlId));
    popup->onControlCreated(placement.listSettings);
    return popup;
}

void FcEditController::clearCaches() const
{
    for (auto const& wrapper : getWritableWrappers())
        wrapper->clearCache();
}

void FcEditController::reloadEditedProperty(PropertyId const& id) const
{
    auto const editor = std::dynamic_pointer_cast<PropertyGridControlObjectEditor>(getOwner().lock());
    auto* const controller =
        editor ? dynamic_cast<ObjectPropertyEditController*>(editor->getControllerNonConst()) : nullptr;
    if (!controller)
        return;
    controller->reloadProperty(id);
    if (auto const owner = controller->getOwner().lock())
        owner->updateView();
}

void FcEditController::notifyObjectsEdited() const
{
    if (auto const owner = getOwner().lock())
        owner->onObjectsEdited();
}

void FcEditController::reloadAndNotify(PropertyId const& id) const
{
    reloadEditedProperty(id);
    notifyObjectsEdited();
}

} // namespace qev::fc::ui::edit
