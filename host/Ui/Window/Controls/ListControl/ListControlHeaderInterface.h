#pragma once

#include "HostUiExport.h"

#include <cstddef>
#include <set>

namespace qev::ui {

/// The platform side of the header of a list.
class HOSTUI_EXPORT ListControlHeaderInterface
{
public:
    virtual ~ListControlHeaderInterface() = default;

    /// Telling the same columns again leaves alone what the user has hidden and shown since.
    virtual void setDefaultHiddenColumns(std::set<std::size_t> const& columns) = 0;
};

} // namespace qev::ui
