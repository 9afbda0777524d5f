#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of enumerated values: a choice of what the definition offers, and nothing.
class QEVFOUNDATIONCLASSESUI_EXPORT EnumeratedValueGridControlPropertyFactory
    : public GridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;
};

} // namespace qev::fc::ui
