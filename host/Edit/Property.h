#pragma once

#include "HostEditExport.h"
#include "Object/PropertyId.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::object {
class PropertyInterface;
}

namespace qev::ui::edit {

/// One row of the tree of the generic object editor, with the rows below it.
struct HOSTEDIT_EXPORT Property
{
    /// \p textKind becomes `kind`. Label and description are those that \p labels gives for \p id; without it
    /// they are asked of the edited object when the row is shown.
    Property(object::PropertyId const& id, unsigned int textKind, std::vector<Property> const& children,
             std::shared_ptr<object::PropertyInterface> labels);

    /// The path under which the edited object answers. Made by an editor's dynamic rows, it may begin with
    /// the name of a level, such as "Instance".
    object::PropertyId id;
    /// In place of the label and the description that the edited object gives.
    std::optional<std::pair<std::string, std::string>> labelAndDescription;
    std::vector<Property> children;

    /// Texts that the program which configures the editor keeps with the row, by key.
    std::map<std::string, std::string> texts;
    /// Switches that the program which configures the editor keeps with the row, by key.
    std::map<std::string, bool> switches;

    /// A heading over its children.
    bool isGroup = false;
    /// A heading some of whose children have no fixed text: its line cannot stand for all of them.
    bool isPartial = false;
    /// 1 when `fixedText` is all that the row shows.
    unsigned int kind = 0;

    /// Shown in place of the value.
    std::optional<std::string> fixedText;
    /// Shown behind the value.
    std::optional<std::string> suffix;
    /// Shown in grey where there is no value.
    std::optional<std::string> hint;
};

} // namespace qev::ui::edit
