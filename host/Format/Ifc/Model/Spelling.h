#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "HostIfcModelExport.h"

#include <string>
#include <string_view>

namespace qev::ifc {

/// The text of a changed argument in which everything that did not change keeps the spelling it had.
///
/// Lists are compared element by element. Numbers count as unchanged when they differ by no more than
/// the rounding of a conversion to SI units and back.
HOSTIFCMODEL_EXPORT std::string respelled(std::string_view before, step::StepValue const& after);

} // namespace qev::ifc
