#pragma once

#include "Edit/PropertyGridControlObjectEditorContext.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesClassification.h"
#include "FoundationClasses/Core/Kernel/FcRelAssociatesDocument.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassification.h"
#include "FoundationClasses/Resource/ExternalReference/FcClassificationReference.h"
#include "FoundationClasses/Resource/ExternalReference/FcDocumentReference.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWall.h"
#include "FoundationClasses/Shared/SharedBldgElements/FcWallType.h"
#include "kit/ModelBuilder.h"
#include "kit/ReportRecorder.h"
#include "UI/FoundationClasses/FcObjectEditor.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace qev::test {

/// A document whose address is \p location, related to \p objects.
inline std::shared_ptr<fc::resource::externalreference::FcDocumentReference>
addDocument(Model& model, Model::Objects const& objects, std::string location)
{
    using namespace fc::core::kernel;
    auto const document = std::make_shared<fc::resource::externalreference::FcDocumentReference>();
    document->Location = std::move(location);
    auto const relation = model.add<FcRelAssociatesDocument>("");
    relation->setRelatingDocument(fc::resource::externalreference::FcDocumentSelect(document));
    std::vector<FcDefinitionSelect> related;
    for (auto const& object : objects)
        related.emplace_back(object);
    relation->setRelatedObjects(std::move(related));
    return document;
}

/// Settings of a host that shows and lets edit what usually is not.
class GenerousSettings : public fc::ui::PropertySettings
{
public:
    [[nodiscard]] bool showGlobalId() const override { return true; }
    [[nodiscard]] bool isUserEditableEnumeration(std::string_view setName,
                                                 std::string_view propertyName) const override
    {
        return setName == "Own" && propertyName == "Status";
    }
};

/// While it lives, these are the settings of the program.
class SettingsScope
{
public:
    explicit SettingsScope(std::shared_ptr<fc::ui::PropertySettingsInterface> settings)
        : m_before(fc::ui::PropertySettings::setInstance(std::move(settings)))
    {
    }
    ~SettingsScope() { fc::ui::PropertySettings::setInstance(m_before); }
    SettingsScope(SettingsScope const&) = delete;
    SettingsScope& operator=(SettingsScope const&) = delete;

private:
    std::shared_ptr<fc::ui::PropertySettingsInterface> m_before;
};

/// A wall with one property of each kind in a set of its own, and an editor over it.
struct ObjectEditorTest : testing::Test
{
    using FcPropertyWrapper = fc::ui::propertyinterface::FcPropertyWrapper;
    using FcObjectEditor = fc::ui::edit::FcObjectEditor;

    Model model;
    std::shared_ptr<fc::shared::sharedbldgelements::FcWall> wall = model.wall("W1");
    std::shared_ptr<fc::core::kernel::FcPropertySet> set =
        model.addSet(wall, "Own", {{"Single", label("text")}});
    std::shared_ptr<FcPropertyWrapper> wrapper = std::make_shared<FcPropertyWrapper>(model.data(), wall);
    FcObjectEditor editor{*wrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel};

    ObjectEditorTest()
    {
        set->HasProperties.addProperty(
            enumeratedValue("Status", {label("NEW")}, {label("NEW"), label("OLD")}));
        set->HasProperties.addProperty(
            enumeratedValue("Other", {label("NEW")}, {label("NEW"), label("OLD")}));
        set->HasProperties.addProperty(boundedValue("Bounded", real(1), real(2), FcValue()));
        set->HasProperties.addProperty(listValue("List", {label("a"), label("b")}));
        set->HasProperties.addProperty(tableValue("Table", {{real(1), real(2)}}));
        wrapper->setReadOnly(false);
    }
};

} // namespace qev::test
