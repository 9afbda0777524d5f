#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <vector>

namespace qev::fc {
struct Property;
}

namespace qev::fc::ui::propertyinterface {

/// Lists the rows of an entity as a tree of nodes.
///
/// An entity's rows stand below one node, its group, which ends `properties`. A visit that adds rows to an
/// entity first runs `accept` of its base class, and then works on that group.
class QEVFOUNDATIONCLASSESUI_EXPORT GetProperties final : public FcVisitorBase
{
public:
    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(core::productextension::FcBuilding const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(resource::externalreference::FcClassificationReference const& entity) override;
    bool visit(resource::property::FcComplexProperty const& entity) override;
    bool visit(core::kernel::FcContext const& entity) override;
    bool visit(resource::representation::FcCoordinateOperation const& entity) override;
    bool visit(resource::measure::FcDerivedUnit const& entity) override;
    bool visit(resource::measure::FcDerivedUnitElement const& entity) override;
    bool visit(shared::sharedbldgserviceelements::FcDistributionPort const& entity) override;
    bool visit(resource::externalreference::FcDocumentReference const& entity) override;
    bool visit(core::productextension::FcElement const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::property::FcExtendedProperties const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::material::FcMaterial const& entity) override;
    bool visit(resource::material::FcMaterialConstituent const& entity) override;
    bool visit(resource::material::FcMaterialConstituentSet const& entity) override;
    bool visit(resource::material::FcMaterialLayer const& entity) override;
    bool visit(resource::material::FcMaterialLayerSet const& entity) override;
    bool visit(resource::material::FcMaterialLayerSetUsage const& entity) override;
    bool visit(resource::material::FcMaterialProfile const& entity) override;
    bool visit(core::kernel::FcObject const& entity) override;
    bool visit(core::kernel::FcObjectDefinition const& entity) override;
    bool visit(resource::utility::FcOwnerHistory const& entity) override;
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
    bool visit(core::productextension::FcSite const& entity) override;
    bool visit(core::productextension::FcSpatialElement const& entity) override;
    bool visit(core::kernel::FcTypeObject const& entity) override;

    /// The nodes found, top level.
    std::vector<std::shared_ptr<Property>> properties;
};

} // namespace qev::fc::ui::propertyinterface
