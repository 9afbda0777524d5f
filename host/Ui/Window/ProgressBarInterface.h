#pragma once

#include "HostUiExport.h"

#include <memory>
#include <string>

namespace qev::ui {

/// The progress bar of one long operation; it runs as long as the object lives.
///
/// While one runs, lists ask for no cells: the model may be changing under them.
class HOSTUI_EXPORT ProgressBarInterface
{
public:
    ProgressBarInterface();
    virtual ~ProgressBarInterface();
    ProgressBarInterface(ProgressBarInterface const&) = delete;
    ProgressBarInterface& operator=(ProgressBarInterface const&) = delete;

    /// A progress bar of the current back end. Without a back end nobody can see it, or stop the operation.
    [[nodiscard]] static std::unique_ptr<ProgressBarInterface> create(std::string const& title);

    /// Shows how far the operation is, from 0 to 1, and what it is doing.
    virtual void setProgress(double fraction, std::string const& text) = 0;
    /// True once the user has asked to stop.
    [[nodiscard]] virtual bool isCancelled() const = 0;

    /// True while a long operation shows a progress bar.
    [[nodiscard]] static bool isRunning();
};

} // namespace qev::ui
