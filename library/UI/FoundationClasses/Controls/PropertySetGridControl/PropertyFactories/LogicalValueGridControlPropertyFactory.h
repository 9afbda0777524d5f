#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueGridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of logicals: a choice of true, false, unknown and nothing.
class QEVFOUNDATIONCLASSESUI_EXPORT LogicalValueGridControlPropertyFactory
    : public SingleValueGridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;
};

} // namespace qev::fc::ui
