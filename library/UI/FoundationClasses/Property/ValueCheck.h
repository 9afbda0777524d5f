#pragma once

#include "QevFoundationClassesUiExport.h"

namespace qev::fc::ui {

class PropertyInterface;
struct PropertyOrQuantityValue;

/// Tells if `PropertyInterface::updateValue` would store \p value in each of the objects, without a change to
/// any. Nothing is thrown: a value that lets exceptions pass on its way is refused.
[[nodiscard]] QEVFOUNDATIONCLASSESUI_EXPORT bool wouldTake(PropertyInterface const& property,
                                                           PropertyOrQuantityValue const& value);

} // namespace qev::fc::ui
