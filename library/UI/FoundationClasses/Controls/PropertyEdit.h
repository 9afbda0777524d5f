#pragma once

#include <string>

namespace qev::fc {
class Data;
}

namespace qev::fc::ui {

class FcPropertyBooleanType;
class PropertyInterface;
struct PropertyOrQuantityValue;

/// Writes what a user entered in a row, as one step that can be undone.
///
/// Exceptions that a value lets pass end here: the input is refused. \returns whether it was taken.
bool writeEdit(PropertyInterface& property, Data& data, PropertyOrQuantityValue const& value);

/// The same for the check box of a row.
bool writeCheckBoxEdit(FcPropertyBooleanType& property, Data& data, PropertyOrQuantityValue const& value);

} // namespace qev::fc::ui
