#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of schema attributes, which cannot be edited. They do not keep the property.
class QEVFOUNDATIONCLASSESUI_EXPORT GridControlValueFactory : public GridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;
};

} // namespace qev::fc::ui
