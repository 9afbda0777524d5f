#pragma once

#include "Ui/Window/Image.h"

namespace qev::ui::propertygridcontrol::button {

/// When the button of a row can be seen.
enum class VisibleState : int
{
    Hidden = 0,
    Visible = 1,
};

} // namespace qev::ui::propertygridcontrol::button
