#pragma once

#include "Ui/Window/WindowInterface.h"

namespace qev::ui {

/// The platform side of a child control of a dialog.
class HOSTUI_EXPORT DialogControlInterface : public WindowInterface
{
};

} // namespace qev::ui
