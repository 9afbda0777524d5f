#pragma once

#include "Ui/Window/WindowInterface.h"

#include <string>

namespace qev::ui {

/// The platform side of a dialog.
class HOSTUI_EXPORT DialogInterface : public WindowInterface
{
public:
    virtual void setTitle(std::string const& title) = 0;
    [[nodiscard]] virtual std::string getTitle() const = 0;
};

} // namespace qev::ui
