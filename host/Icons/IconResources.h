#pragma once

#include "Core/Id/Guid.h"
#include "HostIconsExport.h"
#include "Icons/IconSource.h"

#include <memory>
#include <string>
#include <string_view>

namespace qev::platform::qt {

/// The pictures of the program, by the path they have among its resources and by the id under which they are
/// known once somebody has asked for one. An id stands for a path; it is the same for as long as the program
/// runs.
///
/// To be used on the thread of the user interface.
class HOSTICONS_EXPORT IconResources
{
public:
    [[nodiscard]] static bool existsIcon(std::string_view path);
    /// The id of the picture at \p path. A path that has none yet gets one, whether there is a picture or
    /// not.
    [[nodiscard]] static Guid getImageId(std::string_view path);
    /// The path that \p imageId was given for; empty for an unknown id.
    [[nodiscard]] static std::string getPath(Guid const& imageId);
    /// The SVG text at \p path; empty where there is none.
    [[nodiscard]] static std::string_view getDrawing(std::string_view path);

    /// Takes the pictures from \p source from now on, or those compiled in for null.
    /// \returns the source until now; null for those compiled in.
    static std::shared_ptr<IconSource const> setSource(std::shared_ptr<IconSource const> source);
};

} // namespace qev::platform::qt
