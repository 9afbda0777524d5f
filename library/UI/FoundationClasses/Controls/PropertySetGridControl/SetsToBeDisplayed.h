#pragma once

#include "QevFoundationClassesUiExport.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {

class PropertySetDefinition;

/// The sets that a grid is about to show, and in which order. Does not own them.
struct QEVFOUNDATIONCLASSESUI_EXPORT SetsToBeDisplayed
{
    /// What the host asks for, if it does.
    std::optional<std::vector<std::string>> requestedOrder;
    /// The names of the sets in their own order.
    std::vector<std::string> names;
    std::map<std::string, PropertySetDefinition const*> definitionsByName;

    /// Adds a set at the end. Of several with one name the first counts.
    void add(PropertySetDefinition const& definition);

    /// The requested order as it stands, or else the sets' own order. A request with fewer names than there
    /// are sets is reported and does not count.
    [[nodiscard]] std::vector<std::string> const& getOrderedNames() const;
};

} // namespace qev::fc::ui
