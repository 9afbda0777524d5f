#pragma once

#include "Ui/Window/DialogControl.h"

namespace qev::ui {

/// A frame around other controls of a dialog. Dialog layouts use one as the placeholder of a control
/// that is made when the program runs.
class HOSTUI_EXPORT GroupBox : public DialogControl
{
public:
    [[nodiscard]] static char const* getClassName() { return "GroupBox"; }

protected:
    [[nodiscard]] bool isCompatibleWith(WindowClass windowClass) const override
    {
        return windowClass == WindowClass::GroupBox;
    }
};

} // namespace qev::ui
