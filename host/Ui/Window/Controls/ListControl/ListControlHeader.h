#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Controls/ListControl/ListControlHeaderInterface.h"

#include <cstddef>
#include <set>

namespace qev::ui {

/// The header of a list control, part of it.
class HOSTUI_EXPORT ListControlHeader
{
public:
    /// Says which columns are hidden until the user shows them. Reports
    /// "List control header interface not set." without a platform side.
    void setDefaultHiddenColumns(std::set<std::size_t> const& columns);

    /// The platform side, which belongs to that of the list; null takes it away.
    void setInterface(ListControlHeaderInterface* headerInterface) { m_interface = headerInterface; }

private:
    ListControlHeaderInterface* m_interface = nullptr;
};

} // namespace qev::ui
