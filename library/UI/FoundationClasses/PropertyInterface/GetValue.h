#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"
#include "QevFoundationClassesUiExport.h"

#include <optional>
#include <string>
#include <utility>

namespace qev::fc {
class Data;
}
namespace qev::ifc::def {
class SchemaPset;
}

namespace qev::fc::ui::propertyinterface {

/// Reads a property of an entity.
class QEVFOUNDATIONCLASSESUI_EXPORT GetValue final : public FcVisitorBase
{
public:
    GetValue(Data const& model, object::PropertyId propertyId, std::optional<std::string> nameOfSet)
        : data(model)
        , id(std::move(propertyId))
        , setName(std::move(nameOfSet))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(resource::externalreference::FcClassificationReference const& entity) override;
    bool visit(core::productextension::FcElement const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationSubContext const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::material::FcMaterialConstituentSet const& entity) override;
    bool visit(resource::material::FcMaterialLayerSet const& entity) override;
    bool visit(core::kernel::FcObject const& entity) override;
    bool visit(core::kernel::FcObjectDefinition const& entity) override;
    bool visit(resource::utility::FcOwnerHistory const& entity) override;
    bool visit(resource::actor::FcPerson const& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity const& entity) override;
    bool visit(resource::actor::FcPostalAddress const& entity) override;
    bool visit(core::kernel::FcProduct const& entity) override;
    bool visit(resource::property::FcProperty const& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertyListValue const& entity) override;
    bool visit(resource::property::FcPropertyReferenceValue const& entity) override;
    bool visit(resource::property::FcPropertySingleValue const& entity) override;
    bool visit(resource::property::FcPropertyTableValue const& entity) override;
    bool visit(core::productextension::FcRelSpaceBoundary const& entity) override;
    bool visit(core::productextension::FcSite const& entity) override;
    bool visit(core::productextension::FcSpatialElement const& entity) override;
    bool visit(resource::actor::FcTelecomAddress const& entity) override;

    Data const& data;
    object::PropertyId id;
    /// The property set by way of which the property is reached.
    std::optional<std::string> setName;
    /// The result; nothing where no visit knows the id.
    object::PropertyValue value;
};

/// What an attribute of \p entity reads as that is not set: an unset optional of the kind that its type in
/// \p schema has, so that an editor for that kind opens on it.
///
/// A schema that is null, or that has no such class or attribute, is reported; the optional is then one of
/// texts.
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT object::PropertyValue
getNulloptPropertyValueFor(FcBase const& entity, object::PropertyId const& id,
                           ifc::def::SchemaPset const* schema);

} // namespace qev::fc::ui::propertyinterface
