#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <utility>

namespace qev::fc::ui::propertyinterface {

/// Asks if a property of an entity is one of a list of values.
class QEVFOUNDATIONCLASSESUI_EXPORT HasEnumeratedValues final : public FcVisitorBase
{
public:
    explicit HasEnumeratedValues(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertySingleValue const& entity) override;

    object::PropertyId id;
    bool result = false;
};

} // namespace qev::fc::ui::propertyinterface
