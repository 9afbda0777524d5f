#pragma once

#include "QevFoundationClassesUiExport.h"

#include <optional>
#include <string>

namespace qev::fc::ui {

/// One edit on its way to the model: a text, or a number in SI units. Exactly one of the two is filled.
///
/// The empty text asks to clear the property.
struct QEVFOUNDATIONCLASSESUI_EXPORT PropertyOrQuantityValue
{
    /// What the user typed or chose from a list.
    std::optional<std::string> stringValue;
    /// A number that a quantity presentation has converted already.
    std::optional<double> quantityValue;

    [[nodiscard]] static PropertyOrQuantityValue fromText(std::string text);
    [[nodiscard]] static PropertyOrQuantityValue fromNumber(double number);

    /// The text; without one that is reported, and the result is empty.
    [[nodiscard]] std::string getStringValue() const;
    /// The number; nothing when the edit is a text.
    [[nodiscard]] std::optional<double> getQuantityValue() const { return quantityValue; }

    /// True for the empty text. A number never clears.
    [[nodiscard]] bool isClearing() const { return stringValue && stringValue->empty(); }
};

} // namespace qev::fc::ui
