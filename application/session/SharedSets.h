#pragma once

#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include <cstddef>
#include <string>

namespace qev::application {

/// How many other objects have the very property set or quantity set that \p object has under this name: an
/// edit of it changes them too. 0 for an object of no model.
[[nodiscard]] std::size_t countOthersWithSet(fc::core::kernel::FcObjectDefinition const& object,
                                             std::string const& setName);

} // namespace qev::application
