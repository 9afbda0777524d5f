#pragma once

#include "Edit/EditorNode.h"
#include "Edit/EditorProperty.h"
#include "Ui/PropertyGrid/PropertyGridRowState.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui::edit {

/// A row of the grid as it is to be, with the rows below it.
struct HOSTEDIT_EXPORT EditorRow
{
    /// The key of the button that lets a value of an object's own go. No other button may have it.
    static constexpr std::string_view resetKey = "reset";

    PropertyGridRowState state;
    /// Null for rows without a quantity.
    std::unique_ptr<unit::QuantityPresentationBase> presentation;
    std::vector<EditorRow> children;

    /// The rows of \p objects on \p level. Their keys are the ids of the properties.
    [[nodiscard]] static std::vector<EditorRow> makeRows(ShownObjects const& objects,
                                                         ObjectPropertyEditControllerBase const& controller,
                                                         EditorLevel const& level);
};

} // namespace qev::ui::edit
