#pragma once

#include "Edit/ObjectPropertyEditControllerBase.h"
#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <utility>
#include <vector>

namespace qev::fc::ui::propertyinterface {

/// Lists the values that a property of an entity may be one of.
class QEVFOUNDATIONCLASSESUI_EXPORT GetEnumeratedValues final : public FcVisitorBase
{
public:
    explicit GetEnumeratedValues(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;
    bool visit(resource::property::FcPropertySingleValue const& entity) override;

    object::PropertyId id;
    /// The result.
    std::vector<qev::ui::edit::ObjectPropertyEditControllerBase::EnumeratedValue> values;
};

} // namespace qev::fc::ui::propertyinterface
