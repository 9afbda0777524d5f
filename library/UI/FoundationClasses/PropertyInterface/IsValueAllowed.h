#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"
#include "QevFoundationClassesUiExport.h"

#include <utility>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui::propertyinterface {

/// Asks if a value may be written to a property of an entity.
class QEVFOUNDATIONCLASSESUI_EXPORT IsValueAllowed final : public FcVisitorBase
{
public:
    IsValueAllowed(Data const& model, object::PropertyId propertyId,
                   object::PropertyValue const& valueInQuestion)
        : data(model)
        , id(std::move(propertyId))
        , value(&valueInQuestion)
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::property::FcPropertyEnumeratedValue const& entity) override;

    Data const& data;
    object::PropertyId id;
    /// The value in question. Never null.
    object::PropertyValue const* value;
    /// The result.
    bool allowed = true;
};

} // namespace qev::fc::ui::propertyinterface
