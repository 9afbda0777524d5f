#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/PropertyInterface/EntityReference.h"

#include <utility>

namespace qev::fc::ui::propertyinterface {

/// Finds what a property of an entity leads to.
class QEVFOUNDATIONCLASSESUI_EXPORT GetReference final : public FcVisitorBase
{
public:
    explicit GetReference(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::externalreference::FcClassification const& entity) override;
    bool visit(core::productextension::FcElement const& entity) override;
    bool visit(resource::externalreference::FcExternalReference const& entity) override;
    bool visit(core::kernel::FcObject const& entity) override;
    bool visit(core::kernel::FcObjectDefinition const& entity) override;
    bool visit(core::productextension::FcRelSpaceBoundary const& entity) override;
    bool visit(core::productextension::FcSite const& entity) override;

    object::PropertyId id;
    /// The result.
    EntityReference reference;
};

} // namespace qev::fc::ui::propertyinterface
