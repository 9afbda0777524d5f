#pragma once

#include "HostUiQtExport.h"

#include <QIcon>
#include <string_view>

namespace qev {
class Guid;
}

namespace qev::ui {

/// The program's icons as Qt draws them, sharp at every scale of the screen. Each is made once.
class HOSTUIQT_EXPORT QtIcons
{
public:
    /// The icon of an id that `IconResources` gave out; an empty one for other ids.
    [[nodiscard]] static QIcon get(Guid const& imageId);
    /// The icon of a name without its size, such as "/Buttons/delete", in both its sizes; an empty one where
    /// the program has none of that name.
    [[nodiscard]] static QIcon get(std::string_view name);
};

} // namespace qev::ui
