#pragma once

#include "Core/Assert/Assert.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::fc::ui {

/// Calls \p visit with each object definition among \p objects, in order, until it returns false.
///
/// Entities of other classes are passed over. So is null, which is reported for \p function in \p path.
template <class Visit>
void forEachObjectDefinition(std::vector<std::shared_ptr<FcBase>> const& objects, std::string_view function,
                             std::string_view path, Visit const& visit)
{
    for (auto const& object : objects) {
        if (!object) {
            assert::report("Object is nullptr.", function, path);
            continue;
        }
        auto const definition = entityCast<core::kernel::FcObjectDefinition>(object);
        if (definition && !visit(*definition))
            return;
    }
}

/// The text that all object definitions among \p objects have in common.
///
/// Empty when two texts differ by a byte, when \p text has none for one of the objects, and when there is no
/// object definition. Null entries are reported as in `forEachObjectDefinition`.
[[nodiscard]] std::string
commonText(std::vector<std::shared_ptr<FcBase>> const& objects, std::string_view function,
           std::string_view path,
           std::function<std::optional<std::string>(core::kernel::FcObjectDefinition&)> const& text);

} // namespace qev::fc::ui
