#pragma once

#include "HostUiExport.h"

#include <cstddef>

namespace qev::ui {

class PropertyGridRow;

/// Hears of changes of a `PropertyGridModel`. A null parent stands for the top level.
class HOSTUI_EXPORT PropertyGridObserver
{
public:
    virtual ~PropertyGridObserver() = default;

    virtual void onAboutToReset() {}
    /// All rows are gone.
    virtual void onReset() {}
    virtual void onRowAboutToBeInserted(PropertyGridRow* /*parent*/, std::size_t /*index*/) {}
    virtual void onRowInserted(PropertyGridRow* /*parent*/, std::size_t /*index*/) {}
    /// Something of the row's own state is new; its children are as they were.
    virtual void onRowChanged(PropertyGridRow& /*row*/) {}
};

} // namespace qev::ui
