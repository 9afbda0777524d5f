#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <memory>

namespace qev::ui {

/// A new row made from all that it is to hold, for owners that use what rows can do beyond the operations of
/// `PropertyGridProperty`: keys, input checks, buttons at the end.
class HOSTUI_EXPORT PropertyGridStateProperty final : public PropertyGridProperty
{
public:
    PropertyGridStateProperty(PropertyGridRowState state,
                              std::unique_ptr<unit::QuantityPresentationBase> presentation);
    ~PropertyGridStateProperty() override;

    /// The row; null without a back end.
    [[nodiscard]] PropertyGridRow* getRow() const;
};

} // namespace qev::ui
