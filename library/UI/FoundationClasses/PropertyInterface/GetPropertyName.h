#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <optional>
#include <string>
#include <utility>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui::propertyinterface {

/// Gives the label of a property of an entity in the current language.
class QEVFOUNDATIONCLASSESUI_EXPORT GetPropertyName final : public FcVisitorBase
{
public:
    GetPropertyName(Data const& model, object::PropertyId propertyId, std::optional<std::string> nameOfSet)
        : data(model)
        , id(std::move(propertyId))
        , setName(std::move(nameOfSet))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(resource::externalreference::FcClassificationReference const& entity) override;
    bool visit(resource::property::FcComplexProperty const& entity) override;
    bool visit(core::kernel::FcContext const& entity) override;
    bool visit(resource::representation::FcCoordinateOperation const& entity) override;
    bool visit(resource::measure::FcDerivedUnit const& entity) override;
    bool visit(resource::measure::FcDerivedUnitElement const& entity) override;
    bool visit(shared::sharedbldgserviceelements::FcDistributionPort const& entity) override;
    bool visit(resource::externalreference::FcDocumentReference const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::property::FcExtendedProperties const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::material::FcMaterial const& entity) override;
    bool visit(resource::material::FcMaterialConstituent const& entity) override;
    bool visit(resource::material::FcMaterialConstituentSet const& entity) override;
    bool visit(resource::material::FcMaterialLayer const& entity) override;
    bool visit(resource::material::FcMaterialLayerSet const& entity) override;
    bool visit(resource::material::FcMaterialProfile const& entity) override;
    bool visit(core::kernel::FcObject const& entity) override;
    bool visit(core::kernel::FcObjectDefinition const& entity) override;
    bool visit(resource::actor::FcPerson const& entity) override;
    bool visit(resource::actor::FcPersonAndOrganization const& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity const& entity) override;
    bool visit(resource::actor::FcPostalAddress const& entity) override;
    bool visit(core::kernel::FcProduct const& entity) override;
    bool visit(resource::property::FcProperty const& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertyListValue const& entity) override;
    bool visit(core::kernel::FcPropertySet const& entity) override;
    bool visit(core::kernel::FcPropertySetDefinition const& entity) override;
    bool visit(resource::property::FcPropertyTableValue const& entity) override;
    bool visit(core::productextension::FcRelSpaceBoundary const& entity) override;
    bool visit(core::productextension::FcSpatialElement const& entity) override;
    bool visit(resource::actor::FcTelecomAddress const& entity) override;
    bool visit(core::kernel::FcTypeObject const& entity) override;

    Data const& data;
    object::PropertyId id;
    /// The property set by way of which the property is reached.
    std::optional<std::string> setName;
    /// The result.
    std::string name;
};

} // namespace qev::fc::ui::propertyinterface
