#pragma once

#include <optional>
#include <string>

namespace qev::fc::ui::propertyinterface {

/// What is shown for a set of layers or constituents: "Name - Description", or the one of them that is set.
[[nodiscard]] inline std::string nameAndDescription(std::optional<std::string> const& name,
                                                    std::optional<std::string> const& description)
{
    std::string text = name.value_or("");
    if (!description)
        return text;
    if (!text.empty())
        text += " - ";
    return text + *description;
}

} // namespace qev::fc::ui::propertyinterface
