#pragma once

#include "UI/FoundationClasses/Controls/PropertySetGridControl/PropertyFactories/GridControlPropertyFactory.h"
#include "Ui/Window/CheckState.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"

#include <memory>
#include <string>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::fc::ui {

/// A row that shows the text \p value, with a button of its own when the host wants one.
[[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
makeTextRow(GridControlPropertyFactory::CreatePropertyParams const& params, std::string const& value);

/// A row that shows the number \p value through \p quantity, with a button when the host wants one.
[[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
makeNumberRow(GridControlPropertyFactory::CreatePropertyParams const& params, double value,
              std::unique_ptr<unit::QuantityPresentationBase> quantity);

/// A row with the property's text and the property for its user data; null when there is no text
/// and empty rows are not wanted.
[[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
makeStringRow(GridControlPropertyFactory::CreatePropertyParams const& params);

/// Lets \p row lead to \p property, so that `propertyOfRow` gives it back.
void setRowProperty(qev::ui::PropertyGridProperty& row, PropertyInterface& property);
/// The property of a row; null for one that has none.
[[nodiscard]] PropertyInterface* propertyOfRow(qev::ui::PropertyGridProperty const& row);

[[nodiscard]] inline qev::ui::CheckState checkStateOf(bool checked)
{
    return checked ? qev::ui::CheckState::Checked : qev::ui::CheckState::Unchecked;
}

} // namespace qev::fc::ui
