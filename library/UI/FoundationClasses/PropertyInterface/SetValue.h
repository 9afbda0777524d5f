#pragma once

#include "FoundationClasses/FcVisitorBaseNonConst.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"
#include "QevFoundationClassesUiExport.h"

#include <utility>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui::propertyinterface {

/// Writes a property of an entity.
class QEVFOUNDATIONCLASSESUI_EXPORT SetValue final : public FcVisitorBaseNonConst
{
public:
    SetValue(Data& model, object::PropertyId propertyId, object::PropertyValue const& newValue)
        : data(model)
        , id(std::move(propertyId))
        , value(&newValue)
    {
    }

    using FcVisitorBaseNonConst::visit;
    void visit(FcBase& entity) override;
    bool visit(resource::geometry::FcCartesianPoint& entity) override;
    bool visit(resource::property::FcComplexProperty& entity) override;
    bool visit(core::productextension::FcElementQuantity& entity) override;
    bool visit(resource::property::FcExtendedProperties& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationSubContext& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement& entity) override;
    bool visit(resource::material::FcMaterialConstituentSet& entity) override;
    bool visit(resource::material::FcMaterialLayerSet& entity) override;
    bool visit(resource::material::FcMaterialLayerSetUsage& entity) override;
    bool visit(resource::material::FcMaterialProfile& entity) override;
    bool visit(resource::utility::FcOwnerHistory& entity) override;
    bool visit(resource::actor::FcPerson& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity& entity) override;
    bool visit(resource::actor::FcPostalAddress& entity) override;
    bool visit(resource::property::FcProperty& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue& entity) override;
    bool visit(resource::property::FcPropertyListValue& entity) override;
    bool visit(resource::property::FcPropertyReferenceValue& entity) override;
    bool visit(resource::property::FcPropertySingleValue& entity) override;
    bool visit(resource::property::FcPropertyTableValue& entity) override;
    bool visit(core::productextension::FcRelSpaceBoundary& entity) override;
    bool visit(core::productextension::FcSite& entity) override;
    bool visit(resource::actor::FcTelecomAddress& entity) override;

    Data& data;
    object::PropertyId id;
    /// What to write. Never null.
    object::PropertyValue const* value;
};

} // namespace qev::fc::ui::propertyinterface
