#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"

#include <memory>
#include <string>

/// A value of a property in the cell of a list: its text, and an edit of it.
namespace qev::fc::ui {

/// The presentation of \p value, which it carries: the one that \p property chooses by \p setName, without a
/// property that of the value's type. Null for values without one, such as the empty value.
[[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
presentationOfValue(resource::measure::FcValue const& value, resource::property::FcProperty const* property,
                    std::string const& setName);

/// The text of \p value for people; none for the empty value. \p presentation may be null.
[[nodiscard]] std::string cellText(resource::measure::FcValue const& value,
                                   unit::QuantityPresentationBase const* presentation);
/// The same with all digits, for an editor.
[[nodiscard]] std::string cellEditText(resource::measure::FcValue const& value,
                                       unit::QuantityPresentationBase const* presentation);

/// Stores what was typed. False, and no change, for a text that is not understood.
bool setValueFromCell(resource::measure::FcValue& value, unit::QuantityPresentationBase const* presentation,
                      std::string const& text);

} // namespace qev::fc::ui
