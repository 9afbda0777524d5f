#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of single values: texts, and numbers with or without a unit.
class QEVFOUNDATIONCLASSESUI_EXPORT SingleValueGridControlPropertyFactory : public GridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;
};

} // namespace qev::fc::ui
