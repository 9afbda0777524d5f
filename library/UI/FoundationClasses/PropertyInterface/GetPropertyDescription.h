#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <string>
#include <utility>

namespace qev::fc::ui::propertyinterface {

/// Gives the description of a property of an entity in the current language.
class QEVFOUNDATIONCLASSESUI_EXPORT GetPropertyDescription final : public FcVisitorBase
{
public:
    explicit GetPropertyDescription(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(resource::property::FcComplexProperty const& entity) override;
    bool visit(core::kernel::FcContext const& entity) override;
    bool visit(resource::measure::FcDerivedUnit const& entity) override;
    bool visit(resource::measure::FcDerivedUnitElement const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::property::FcExtendedProperties const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::material::FcMaterial const& entity) override;
    bool visit(resource::material::FcMaterialConstituent const& entity) override;
    bool visit(resource::material::FcMaterialConstituentSet const& entity) override;
    bool visit(resource::material::FcMaterialLayer const& entity) override;
    bool visit(resource::material::FcMaterialLayerSet const& entity) override;
    bool visit(resource::material::FcMaterialProfile const& entity) override;
    bool visit(core::kernel::FcObject const& entity) override;
    bool visit(core::kernel::FcObjectDefinition const& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity const& entity) override;
    bool visit(resource::actor::FcPostalAddress const& entity) override;
    bool visit(core::kernel::FcProduct const& entity) override;
    bool visit(resource::property::FcProperty const& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertyListValue const& entity) override;
    bool visit(core::kernel::FcPropertySetDefinition const& entity) override;
    bool visit(resource::property::FcPropertyTableValue const& entity) override;
    bool visit(core::productextension::FcSpatialElement const& entity) override;
    bool visit(resource::actor::FcTelecomAddress const& entity) override;
    bool visit(core::kernel::FcTypeObject const& entity) override;

    object::PropertyId id;
    /// The result.
    std::string description;
};

} // namespace qev::fc::ui::propertyinterface
