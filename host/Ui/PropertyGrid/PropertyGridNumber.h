#pragma once

#include "HostUiExport.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::unit {
class QuantityPresentationBase;
}

namespace qev::ui {

/// How rows write and read numbers: through their quantity presentation if they have one.
class HOSTUI_EXPORT PropertyGridNumber
{
public:
    /// The text to look at: rounded, with the unit. Without \p presentation the shortest text of the number.
    [[nodiscard]] static std::string getShownText(double internalValue,
                                                  unit::QuantityPresentationBase const* presentation);
    /// The text to edit: all digits, so that reading it gives the very same number.
    [[nodiscard]] static std::string getEditorText(double internalValue,
                                                   unit::QuantityPresentationBase const* presentation);
    /// Reads what a user typed, into internal units. Nothing when it is no number of that quantity.
    [[nodiscard]] static std::optional<double> read(std::string_view text,
                                                    unit::QuantityPresentationBase const* presentation);
    /// For the user: what would have been read in place of \p text, which was not.
    [[nodiscard]] static std::string describeExpected(std::string_view text,
                                                      unit::QuantityPresentationBase const* presentation);
    /// The unit that the number is shown in, such as "mm"; empty without one.
    [[nodiscard]] static std::string getUnit(unit::QuantityPresentationBase const* presentation);
};

} // namespace qev::ui
