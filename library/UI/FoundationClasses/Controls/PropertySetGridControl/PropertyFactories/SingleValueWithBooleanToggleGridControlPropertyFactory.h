#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/BooleanValueGridControlPropertyFactory.h"

namespace qev::fc::ui {

/// Rows of values with a toggle: a check box for the toggle, and the value beside it.
class QEVFOUNDATIONCLASSESUI_EXPORT SingleValueWithBooleanToggleGridControlPropertyFactory
    : public BooleanValueGridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;

protected:
    /// A property of another kind is reported and gives null. So is a property that is turned to its toggle
    /// at the moment, which is then shown with the toggle for its value.
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridCheckBoxProperty>
    createCheckBoxProperty(FcPropertyBooleanType const& property, bool checked,
                           bool showUnused) const override;
};

} // namespace qev::fc::ui
