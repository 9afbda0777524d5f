#pragma once

namespace qev::fc {
class Data;
}
namespace qev::fc::core::kernel {
class FcObjectDefinition;
class FcPropertySetDefinition;
} // namespace qev::fc::core::kernel

namespace qev::fc::ui {

/// Deletes \p set, which has lost its last entry, from \p object and from whatever shares it. A set without a
/// name stays.
void deleteEmptiedSet(core::kernel::FcObjectDefinition& object, core::kernel::FcPropertySetDefinition& set,
                      Data& data);

} // namespace qev::fc::ui
