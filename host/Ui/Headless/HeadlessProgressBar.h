#pragma once

#include "HostUiExport.h"
#include "Ui/Window/ProgressBarInterface.h"

#include <functional>
#include <memory>
#include <string>

namespace qev::ui {

/// What a progress bar shows.
struct HeadlessProgress
{
    std::string title;
    /// From 0 to 1.
    double fraction = 0;
    std::string text;

    friend bool operator==(HeadlessProgress const&, HeadlessProgress const&) = default;
};

/// A progress bar without a screen. What it shows is plain data, and whoever drives the program can stop the
/// operation at each step.
class HOSTUI_EXPORT HeadlessProgressBar final : public ProgressBarInterface
{
public:
    /// Looks at each step; true presses the button that stops the operation.
    using Answer = std::function<bool(HeadlessProgress const&)>;

    /// \p progress is kept up to date as long as the bar lives. \p answer may be empty.
    HeadlessProgressBar(std::shared_ptr<HeadlessProgress> progress, Answer answer);
    ~HeadlessProgressBar() override;

    void setProgress(double fraction, std::string const& text) override;
    [[nodiscard]] bool isCancelled() const override { return m_isCancelled; }

private:
    std::shared_ptr<HeadlessProgress> m_progress;
    Answer m_answer;
    bool m_isCancelled = false;
};

} // namespace qev::ui
