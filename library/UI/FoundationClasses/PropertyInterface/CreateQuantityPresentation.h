#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui::propertyinterface {

/// Makes the presentation of a property of an entity that is a number with a physical meaning.
class QEVFOUNDATIONCLASSESUI_EXPORT CreateQuantityPresentation final : public FcVisitorBase
{
public:
    CreateQuantityPresentation(Data const& model, std::optional<std::string> nameOfSet,
                               object::PropertyId propertyId)
        : data(model)
        , setName(std::move(nameOfSet))
        , id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::geometry::FcCartesianPoint const& entity) override;
    bool visit(core::productextension::FcElementQuantity const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationContext const& entity) override;
    bool visit(resource::representation::FcGeometricRepresentationSubContext const& entity) override;
    bool visit(resource::geometricconstraint::FcLocalPlacement const& entity) override;
    bool visit(resource::quantity::FcPhysicalComplexQuantity const& entity) override;
    bool visit(resource::property::FcPropertyBoundedValue const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertyListValue const& entity) override;
    bool visit(resource::property::FcPropertySingleValue const& entity) override;
    bool visit(resource::property::FcPropertyTableValue const& entity) override;
    bool visit(core::productextension::FcSite const& entity) override;

    Data const& data;
    /// The property set by way of which the property is reached.
    std::optional<std::string> setName;
    object::PropertyId id;
    /// The result; null where the property has no presentation.
    std::unique_ptr<unit::QuantityPresentationBase> presentation;
};

} // namespace qev::fc::ui::propertyinterface
