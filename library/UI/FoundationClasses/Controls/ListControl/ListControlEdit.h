#pragma once

#include "UI/FoundationClasses/PropertyOrQuantityValue.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <optional>

namespace qev::fc::ui {

class PropertyInterface;

/// What the edit of a cell stores in a property with one value or a value of a list.
///
/// Numbers with a unit are read as the presentation of the property reads them; what it does not understand
/// becomes a number that no property takes. An empty text takes the value away, as does a list without a
/// selection. Nothing for an entry that the list does not have.
[[nodiscard]] std::optional<PropertyOrQuantityValue>
editedValue(qev::ui::ListControl::LabelEditEndParams const& params, PropertyInterface const& property);

/// Tells if the objects of \p property would take the value of an edit that ended like this; of a truth
/// value, if they hold one or can get one. Nothing is written.
[[nodiscard]] bool wouldTakeEdit(qev::ui::ListControl::LabelEditEndParams const& params,
                                 PropertyInterface const& property);

} // namespace qev::fc::ui
