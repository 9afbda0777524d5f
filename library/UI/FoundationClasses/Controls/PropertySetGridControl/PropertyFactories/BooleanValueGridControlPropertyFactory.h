#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/SingleValueGridControlPropertyFactory.h"

namespace qev::ui {
class PropertyGridCheckBoxProperty;
}

namespace qev::fc::ui {

class FcPropertyBooleanType;

/// Rows of truth values: a check box, which writes to the model on each click.
class QEVFOUNDATIONCLASSESUI_EXPORT BooleanValueGridControlPropertyFactory
    : public SingleValueGridControlPropertyFactory
{
public:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const override;

protected:
    /// The row of any boolean, ready for clicks; null for other properties and when there is nothing to show.
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createCheckBoxRow(CreatePropertyParams const& params) const;
    /// The row alone; null when there is nothing to show.
    [[nodiscard]] virtual std::unique_ptr<qev::ui::PropertyGridCheckBoxProperty>
    createCheckBoxProperty(FcPropertyBooleanType const& property, bool checked, bool showUnused) const;
};

} // namespace qev::fc::ui
