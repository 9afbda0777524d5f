#pragma once

#include "FoundationClasses/FcVisitorBase.h"
#include "Object/PropertyId.h"
#include "QevFoundationClassesUiExport.h"

#include <string>
#include <utility>

namespace qev::fc::ui::propertyinterface {

/// Gives the text by which an element of a list is told in a path, in place of its position.
class QEVFOUNDATIONCLASSESUI_EXPORT GetListIndexPrefix final : public FcVisitorBase
{
public:
    explicit GetListIndexPrefix(object::PropertyId propertyId)
        : id(std::move(propertyId))
    {
    }

    using FcVisitorBase::visit;
    void visit(FcBase const& entity) override;
    bool visit(resource::externalreference::FcClassificationReference const& entity) override;

    object::PropertyId id;
    /// The result; empty where the position serves.
    std::string prefix;
};

} // namespace qev::fc::ui::propertyinterface
