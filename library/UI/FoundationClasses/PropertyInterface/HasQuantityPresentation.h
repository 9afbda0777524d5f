#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <utility>

namespace qev::fc::ui::propertyinterface {

/// Asks if a property of an entity is a number with a physical meaning.
class QEVFOUNDATIONCLASSESUI_EXPORT HasQuantityPresentation final : public FcVisitorBase
{
public:
    explicit HasQuantityPresentation(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity const& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertyListValue const& entity) override;
    bool visit(resource::property::FcPropertySingleValue const& entity) override;
    bool visit(resource::property::FcPropertyTableValue const& entity) override;
    bool visit(core::productextension::FcSite const& entity) override;

    object::PropertyId id;
    bool result = false;
};

} // namespace qev::fc::ui::propertyinterface
