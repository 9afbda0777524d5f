#include "UI/FoundationClasses/FcObjectEditor.h"

#include "Format/Ifc/Model/PropertyDefinitions.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "Object/Property.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

#include <utility>

namespace qev::fc::ui::edit {

using core::kernel::FcObject;
using core::kernel::FcObjectDefinition;
using core::kernel::FcPropertySetDefinition;
using core::kernel::FcRelAssociatesClassification;
using propertyinterface::GetProperties;
using resource::externalreference::FcClassificationReference;
using resource::property::FcProperty;
using Button = qev::ui::edit::ObjectPropertyEditInterface::PropertyButton;
using EditProperty = qev::ui::edit::Property;

namespace {

constexpr char classificationsId[] = "Classifications";
/// The level of the editor on which dynamic rows stand, by the name that an editor has for it. What an
/// `EditorLevel` is beyond its name is the editor's alone.
constexpr char instanceLevel[] = "Instance";

Button openButton() { return {"", FcObjectEditor::getOpenInExternalAppButtonImage(), ""}; }
Button addButton(std::string key) { return {std::move(key), FcObjectEditor::getAddItemButtonImage(), ""}; }
Button deleteButton() { return {"delete", FcObjectEditor::getDeleteButtonImage(), ""}; }
Button editButton() { return {"edit", FcObjectEditor::getDefaultButtonImage(), ""}; }

bool isOfAClassification(std::string const& path)
{
    return path.starts_with(classificationsId) && path.find('.') != std::string::npos;
}

bool canTakeMoreProperties(std::shared_ptr<FcBase> const& entity)
{
    auto const set = entityCast<FcPropertySetDefinition>(entity);
    return set && !ifc::hasAllProperties(*set);
}

bool isUserEditableEnumeration(std::shared_ptr<FcBase> const& entity)
{
    auto const property = entityCast<FcProperty>(entity);
    auto const names = property ? ifc::getPsetAndPropertyName(*property) : std::nullopt;
    auto const& settings = PropertySettings::getInstance();
    return names && settings && settings->isUserEditableEnumeration(names->first, names->second);
}

void appendChild(EditProperty& parent, EditProperty child)
{
    parent.isGroup = true;
    if (!child.fixedText || child.kind != 1)
        parent.isPartial = true;
    parent.children.push_back(std::move(child));
}

EditProperty makeProperty(object::PropertyId const& id, bool isGroup)
{
    EditProperty property(id, 0, {}, nullptr);
    property.isGroup = isGroup;
    return property;
}

/// From the last dot on; empty without one.
std::string_view lastPart(std::string_view id)
{
    auto const dot = id.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : id.substr(dot);
}

/// The rows of all classifications of an object, in the order of its associations.
std::vector<std::shared_ptr<fc::Property>> classificationsOf(FcObjectDefinition const& object)
{
    GetProperties visitor;
    for (auto const& association : propertyinterface::liveOnes(object.HasAssociations())) {
        auto const relation = entityCast<FcRelAssociatesClassification>(association);
        auto const classification = relation ? relation->RelatingClassification->entity() : nullptr;
        if (classification)
            std::as_const(*classification).accept(visitor);
    }
    return visitor.properties;
}

} // namespace

FcObjectEditor::FcObjectEditor(propertyinterface::FcPropertyWrapper const& wrapper,
                               qev::ui::edit::PropertyGridControlObjectEditorContext /*context*/)
    : m_wrapper(wrapper)
{
}

FcObjectEditor::~FcObjectEditor() = default;

bool FcObjectEditor::isEnabled(PropertyId const&) const { return m_wrapper.isEditableWithOthers(); }

bool FcObjectEditor::isReadOnly(PropertyId const& id) const
{
    if (m_wrapper.isPropertyReadOnly(id))
        return true;
    return std::get<PropertyId>(m_wrapper.getMappedProperty(id)).text() == "BoundedValue";
}

std::optional<attr::Colour> FcObjectEditor::getTextColour(PropertyId const&) { return std::nullopt; }

std::optional<attr::Colour> FcObjectEditor::getBackgroundColour(PropertyId const&) { return std::nullopt; }

// --- Buttons ----------------------------------------------------------------------------------------

std::vector<Button> FcObjectEditor::getButtons(PropertyId const& id) const
{
    if (m_wrapper.isReference(id))
        return {openButton()};
    if (!isReadOnly(id)) {
        if (auto buttons = getButtonsOfWritable(id))
            return *std::move(buttons);
    }
    // A bounded value is read-only in its row, and a table may be; their popups are there all the same.
    auto const mappedId = std::get<PropertyId>(m_wrapper.getMappedProperty(id)).text();
    if (mappedId == "TableValue" || mappedId == "BoundedValue")
        return {deleteButton(), editButton()};
    return {};
}

std::optional<std::vector<Button>> FcObjectEditor::getButtonsOfWritable(PropertyId const& id) const
{
    using Buttons = std::vector<Button>;
    if (id.text() == classificationsId)
        return Buttons{addButton("")};
    if (isOfAClassification(id.text()))
        return Buttons{deleteButton(), editButton()};
    auto const [entity, other, mapped] = m_wrapper.getMappedProperty(id);
    std::string const& mappedId = mapped.text();
    if (mappedId == "PropertySetDefinitionPsets")
        return canTakeMoreProperties(entity) ? Buttons{deleteButton(), addButton("add")}
                                             : Buttons{deleteButton()};
    if (mappedId == "PropertySets" || mappedId == "Documents")
        return Buttons{addButton("")};
    if (mappedId == "EnumeratedValue")
        return isUserEditableEnumeration(entity) ? Buttons{deleteButton(), editButton()}
                                                 : Buttons{deleteButton()};
    if (mappedId == "ListValue")
        return Buttons{deleteButton(), addButton("add")};
    return std::nullopt;
}

// --- Rows -------------------------------------------------------------------------------------------

std::vector<EditProperty> FcObjectEditor::getPropertiesToBeEdited(PropertiesToBeEditedParams const&) const
{
    std::vector<Property> properties;
    for (auto const& node : m_wrapper.getProperties()) {
        if (shouldShow(*node))
            properties.push_back(buildProperty(*node));
    }
    return properties;
}

bool FcObjectEditor::shouldShow(fc::Property const& node) const
{
    if (!node.standalone)
        return false;
    if (node.id.text() == "GlobalId") {
        auto const& settings = PropertySettings::getInstance();
        if (!settings || !settings->showGlobalId())
            return false;
    }
    if (node.isGroup || !m_wrapper.isReadOnly())
        return true;
    return !m_wrapper.getValue(node.id).isNullopt();
}

EditProperty FcObjectEditor::buildProperty(fc::Property const& node) const
{
    auto property = makeProperty(node.id, node.isGroup);
    for (auto const& child : node.children) {
        if (shouldShow(*child))
            appendChild(property, buildProperty(*child));
    }
    return property;
}

std::map<std::string, std::vector<EditProperty>> FcObjectEditor::getDynamicProperties() const
{
    auto const object = entityCast<FcObjectDefinition>(m_wrapper.getObject());
    if (!object)
        return {};
    fc::Property classifications;
    classifications.id = PropertyId(classificationsId);
    classifications.object = object;
    classifications.isGroup = true;
    classifications.isList = true;
    classifications.children = classificationsOf(*object);
    if (classifications.children.empty() && !isOfClass<FcObject>(*object))
        return {};
    std::map<std::string, std::vector<Property>> properties;
    for (std::string const suffix : {"", ".Name", ".Identification"})
        properties[classificationsId + suffix] = {
            buildDynamicProperty(classifications, instanceLevel, false, suffix)};
    return properties;
}

EditProperty FcObjectEditor::buildDynamicProperty(fc::Property const& node, std::string const& name,
                                                  bool topLevel, std::string_view suffix)
{
    auto property = makeProperty(PropertyId(topLevel ? name : name + '.' + node.id.text()), node.isGroup);
    bool const isRoot = name == instanceLevel;
    for (auto const& child : node.children) {
        auto const part = lastPart(child->id.text());
        if (part != suffix)
            continue;
        std::string childName = property.id.text();
        auto const entity = std::dynamic_pointer_cast<FcBase>(child->object);
        auto const reference = isRoot ? entityCast<FcClassificationReference>(entity) : nullptr;
        if (reference)
            childName.append(".").append(reference->getClassificationName()).append(part);
        appendChild(property, buildDynamicProperty(*child, childName, isRoot, suffix));
    }
    return property;
}

} // namespace qev::fc::ui::edit
