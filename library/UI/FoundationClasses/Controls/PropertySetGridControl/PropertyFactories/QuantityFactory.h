#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of quantities.
class QEVFOUNDATIONCLASSESUI_EXPORT QuantityFactory : public GridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;
};

} // namespace qev::fc::ui
