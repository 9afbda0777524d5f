#pragma once

#include "HostUiQtExport.h"
#include "Ui/Window/ProgressBarInterface.h"

#include <QPointer>
#include <QProgressDialog>

namespace qev::ui {

/// A progress bar over the active window, with a button to stop. It shows only if the operation takes long.
///
/// While it shows, no other window takes input; the operation goes on in between, in the same thread.
class HOSTUIQT_EXPORT QtProgressBar final : public ProgressBarInterface
{
public:
    explicit QtProgressBar(QString const& title);
    ~QtProgressBar() override;

    void setProgress(double fraction, std::string const& text) override;
    [[nodiscard]] bool isCancelled() const override;

    /// The dialog; null when it has gone with the window it stood over.
    [[nodiscard]] QProgressDialog* getDialog() const { return m_dialog; }

private:
    QPointer<QProgressDialog> m_dialog;
};

} // namespace qev::ui
