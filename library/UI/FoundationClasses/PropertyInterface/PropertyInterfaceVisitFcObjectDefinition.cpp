#include "Core/Localization/Localize.h"
#include "FoundationClasses/Core/Kernel/FcGroup.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAssignsToGroup.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"
#include "FoundationClasses/Core/ProductExtension/FcPort.h"
#include "FoundationClasses/Core/ProductExtension/FcRelAssociatesMaterial.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetReference.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyAccess.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

#include <cstdlib>

namespace qev::fc::ui::propertyinterface {

using core::kernel::FcObjectDefinition;
using core::kernel::FcRelAssignsToGroup;
using core::kernel::FcRelAssociatesClassification;
using core::kernel::FcRelAssociatesDocument;
using core::productextension::FcRelAssociatesMaterial;
using object::PropertyId;
using resource::externalreference::FcClassificationSelect;
using resource::material::FcMaterialSelect;

namespace {

constexpr std::string_view connectedTo = "ConnectedTo";

// --- Ports ------------------------------------------------------------------------------------------

bool isConnectedTo(PropertyId const& id) { return id.text().starts_with(connectedTo); }

/// The number behind the dot; 0 where there is none.
std::size_t portIndex(PropertyId const& id)
{
    std::size_t const numberBegin = connectedTo.size() + 1;
    return id.text().size() > numberBegin ? std::strtoul(id.text().c_str() + numberBegin, nullptr, 10) : 0;
}

/// What the port of that row connects \p object to; null when it connects it to nothing but itself.
std::shared_ptr<FcObjectDefinition> connectedObject(FcObjectDefinition const& object, PropertyId const& id)
{
    auto const ports = object.getPorts();
    auto const index = portIndex(id);
    if (index >= ports.size())
        return nullptr;
    for (auto const& connected : ports[index]->getConnections(false)) {
        if (connected.get() != &object)
            return connected;
    }
    return nullptr;
}

void addPorts(FcObjectDefinition const& object, Property& group)
{
    auto const ports = object.getPorts();
    if (ports.empty())
        return;
    auto list = makeList("Ports", object);
    for (std::size_t i = 0; i < ports.size(); ++i) {
        auto rows = getProperties(*ports[i]);
        if (rows.empty())
            continue;
        auto row = makeRow(connectedTo, object);
        row->mappedId = PropertyId(std::string(connectedTo) + '.' + std::to_string(i));
        rows.back()->children.push_back(std::move(row));
        list->children.insert(list->children.end(), rows.begin(), rows.end());
    }
    group.children.push_back(std::move(list));
}

// --- Systems and associations -----------------------------------------------------------------------

void addSystems(FcObjectDefinition const& object, Property& group)
{
    std::shared_ptr<Property> list;
    for (auto const& assignment : liveOnes(object.HasAssignments())) {
        auto const toGroup = entityCast<FcRelAssignsToGroup>(assignment);
        auto const system = toGroup ? toGroup->RelatingGroup->get() : nullptr;
        if (!system)
            continue;
        if (!list) {
            list = makeList("Systems", object);
            group.children.push_back(list);
        }
        appendPropertiesOf(system, *list);
    }
}

void appendMaterial(FcMaterialSelect const& material, Property& list)
{
    if (material.tag() == FcMaterialSelect::MaterialList)
        reportInVisit("IfcMaterialList is deprecated, and therefore not implemented.", "GetProperties",
                      "FcObjectDefinition");
    else
        appendPropertiesOf(material.entity(), list);
}

void appendClassification(FcClassificationSelect const& classification, Property& list)
{
    if (classification.tag() == FcClassificationSelect::Classification)
        appendPropertiesOf(classification.getClassification(), list);
    else if (classification.tag() == FcClassificationSelect::ClassificationReference)
        appendPropertiesOf(classification.getClassificationReference(), list);
}

void addAssociations(FcObjectDefinition const& object, Property& group)
{
    auto materials = makeList("Materials", object);
    auto documents = makeList("Documents", object);
    auto classifications = makeList("Classifications", object);
    for (auto const& association : liveOnes(object.HasAssociations())) {
        if (auto const toMaterial = entityCast<FcRelAssociatesMaterial>(association))
            appendMaterial(toMaterial->RelatingMaterial.get(), *materials);
        else if (auto const toDocument = entityCast<FcRelAssociatesDocument>(association))
            appendPropertiesOf(toDocument->RelatingDocument->entity(), *documents);
        else if (auto const toClassification = entityCast<FcRelAssociatesClassification>(association))
            appendClassification(toClassification->RelatingClassification.get(), *classifications);
    }
    if (!materials->children.empty())
        group.children.push_back(std::move(materials));
    group.children.push_back(std::move(documents));
    group.children.push_back(std::move(classifications));
}

bool isHeading(std::string const& id)
{
    return id == "Ports" || id == "Systems" || id == "Materials" || id == "Documents";
}

} // namespace

bool GetProperties::visit(FcObjectDefinition const& object)
{
    object.FcRoot::accept(*this);
    if (auto const group = groupOf(*this)) {
        addPorts(object, *group);
        addSystems(object, *group);
        addAssociations(object, *group);
    }
    return false;
}

bool GetValue::visit(FcObjectDefinition const& object)
{
    auto const connected = isConnectedTo(id) ? connectedObject(object, id) : nullptr;
    if (!connected)
        return true;
    value = classAndName(*connected);
    return false;
}

bool GetReference::visit(FcObjectDefinition const& object)
{
    auto const connected = isConnectedTo(id) ? connectedObject(object, id) : nullptr;
    if (!connected)
        return true;
    reference = connected;
    return false;
}

bool GetPropertyName::visit(FcObjectDefinition const&)
{
    if (isConnectedTo(id))
        name = localizeWithFallback("Connected-to", "Connected to");
    else if (isHeading(id.text()))
        name = fc::localize(id.text());
    else if (id.text() == "Classifications")
        name = qev::localize("Classifications", "FoundationClassesUi");
    else
        return true;
    return false;
}

bool GetPropertyDescription::visit(FcObjectDefinition const&)
{
    if (isConnectedTo(id))
        description = localizeWithFallback("Connected-to_Description", "What this port is connected to");
    else if (isHeading(id.text()) || id.text() == "Classifications")
        description = localizeWithFallback(id.text() + "_Description", "");
    else
        return true;
    return false;
}

} // namespace qev::fc::ui::propertyinterface
