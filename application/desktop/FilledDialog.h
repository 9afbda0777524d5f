#pragma once

#include "Ui/Window/Details/ChildWindowManager.h"
#include "Ui/Window/Dialog.h"

namespace qev::application {

/// A dialog whose children take all of its area.
class FilledDialog final : public ui::Dialog
{
public:
    void onSizeChanged(ui::Size const& size) override
    {
        for (auto const& child : getChildWindowManager()->getWindows())
            child->setPlacement({0, 0, static_cast<int>(size.first), static_cast<int>(size.second)});
    }
};

} // namespace qev::application
