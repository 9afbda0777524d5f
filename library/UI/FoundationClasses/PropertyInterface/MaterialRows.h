#pragma once

#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

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

/// Marks the row of the name as no row of its own: the heading of a layer or constituent shows it already.
inline void leaveNameToHeading(Property& group)
{
    for (auto const& row : group.children) {
        if (row->id.text() == "Name")
            row->standalone = false;
    }
}

} // namespace qev::fc::ui::propertyinterface
