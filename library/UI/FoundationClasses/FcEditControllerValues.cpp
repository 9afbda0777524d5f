#include "UI/FoundationClasses/FcEditController.h"

#include "Core/Id/Guid.h"
#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "UI/FoundationClasses/Controllers/EditBoundedValuePropertyPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyEnumerationPopupController.h"
#include "UI/FoundationClasses/Controllers/EditPropertyTablePopupController.h"
#include "UI/FoundationClasses/FcEditControllerDetails.h"

namespace qev::fc::ui::edit {

using core::kernel::FcDefinitionSelect;
using core::kernel::FcObjectDefinition;
using core::kernel::FcRelAssociatesDocument;
using resource::externalreference::FcDocumentReference;
using resource::externalreference::FcDocumentSelect;
using resource::measure::FcValue;
using resource::property::FcProperty;
using resource::property::FcPropertyBoundedValue;
using resource::property::FcPropertyEnumeratedValue;
using resource::property::FcPropertyListValue;
using resource::property::FcPropertyTableValue;

namespace {

/// The second of three or more segments of a path; empty for shorter paths.
std::string groupNameOf(object::PropertyId const& id)
{
    std::string const& text = id.text();
    auto const first = text.find('.');
    auto const second = first == std::string::npos ? first : text.find('.', first + 1);
    return second == std::string::npos ? std::string() : text.substr(first + 1, second - first - 1);
}

} // namespace

// --- Documents --------------------------------------------------------------------------------------

void FcEditController::addDocumentClicked(PropertyId id)
{
    auto const data = getFcData();
    if (!data)
        return;
    auto const objects = getFcObjectsBeingEdited<FcObjectDefinition>(id);
    {
        EditStep const step(data, "Add document");
        auto const relation = std::make_shared<FcRelAssociatesDocument>();
        relation->setGuid(Guid::generate());
        if (!objects.empty())
            relation->OwnerHistory = objects.front()->OwnerHistory.get();
        data->entityAdd(relation, false);
        auto const document = std::make_shared<FcDocumentReference>();
        data->entityAdd(document, false);
        relation->setRelatingDocument(FcDocumentSelect(document));
        relation->setRelatedObjects(std::vector<FcDefinitionSelect>(objects.begin(), objects.end()));
    }
    reloadAndNotify(id);
}

// --- Popups that edit a value -----------------------------------------------------------------------

void FcEditController::editEnumerationValueClicked(PropertyId id)
{
    auto const owner = getOwner().lock();
    auto control = createListPopupControl("FcEditController.editEnumerationPopup", owner);
    if (!control || !getFcData())
        return;
    auto const properties = getFcObjectsBeingEdited<FcPropertyEnumeratedValue>(id);
    m_editEnumerationPopup = std::make_unique<EditPropertyEnumerationPopupController>(properties);
    m_editEnumerationPopup->attachToControl(std::move(control));
    m_editEnumerationPopup->show([this, properties, id](std::vector<FcValue> const& values) {
        {
            EditStep const step(getFcData(), "Edit enumeration");
            for (auto const& property : properties)
                property->EnumerationValues = values;
        }
        reloadAndNotify(id);
    });
}

void FcEditController::editBoundedValueClicked(PropertyId const& id)
{
    auto const owner = getOwner().lock();
    auto control = createListPopupControl("FcEditController.editBoundedValuePopup", owner);
    if (!control || !getFcData())
        return;
    auto const properties = getFcObjectsBeingEdited<FcPropertyBoundedValue>(id);
    m_editBoundedValuePopup =
        std::make_unique<EditBoundedValuePropertyPopupController>(properties, groupNameOf(id));
    m_editBoundedValuePopup->attachToControl(std::move(control));
    m_editBoundedValuePopup->show([this, properties, id](std::array<FcValue, 3> const& values) {
        {
            EditStep const step(getFcData(), "Edit bounds");
            for (auto const& property : properties) {
                property->LowerBoundValue = values[0];
                property->UpperBoundValue = values[1];
                property->SetPointValue = values[2];
            }
        }
        reloadAndNotify(id);
    });
}

void FcEditController::editTableValueClicked(PropertyId id)
{
    auto const owner = getOwner().lock();
    auto control = createListPopupControl("FcEditController.editTablePopup", owner);
    auto const data = control ? getFcData() : nullptr;
    if (!data)
        return;
    auto const properties = getFcObjectsBeingEdited<FcPropertyTableValue>(id);
    m_editTablePopup = std::make_unique<EditPropertyTablePopupController>(data, properties, groupNameOf(id));
    m_editTablePopup->attachToControl(std::move(control));
    m_editTablePopup->show([this, properties, id](std::vector<std::pair<FcValue, FcValue>> const& rows) {
        std::vector<FcValue> defining;
        std::vector<FcValue> defined;
        for (auto const& [definingValue, definedValue] : rows) {
            defining.push_back(definingValue);
            defined.push_back(definedValue);
        }
        {
            EditStep const step(getFcData(), "Edit table");
            for (auto const& property : properties) {
                property->DefiningValues = defining;
                property->DefinedValues = defined;
            }
        }
        reloadAndNotify(id);
    });
}

// --- Values without a popup -------------------------------------------------------------------------

void FcEditController::addListValueClicked(PropertyId id)
{
    auto const data = getFcData();
    if (!data)
        return;
    {
        EditStep const step(data, "Add value");
        for (auto const& property : withoutRepetitions(getFcObjectsBeingEdited<FcPropertyListValue>(id)))
            ifc::addListValue(*property);
    }
    reloadAndNotify(id);
}

void FcEditController::deletePropertyClicked(PropertyId id)
{
    auto const data = getFcData();
    if (!data)
        return;
    {
        EditStep const step(data, "Delete property");
        for (auto const& property : withoutRepetitions(getFcObjectsBeingEdited<FcProperty>(id)))
            property->deleteProperty(*data, true);
    }
    reloadAndNotify(id);
}

} // namespace qev::fc::ui::edit
