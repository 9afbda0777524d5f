#include "Ui/Window/ProgressBarInterface.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/WindowBackend.h"

namespace qev::ui {

namespace {

int runningBars = 0;

class HiddenProgressBar final : public ProgressBarInterface
{
public:
    void setProgress(double /*fraction*/, std::string const& /*text*/) override {}
    [[nodiscard]] bool isCancelled() const override { return false; }
};

} // namespace

ProgressBarInterface::ProgressBarInterface() { ++runningBars; }

ProgressBarInterface::~ProgressBarInterface() { --runningBars; }

std::unique_ptr<ProgressBarInterface> ProgressBarInterface::create(std::string const& title)
{
    if (auto const backend = details::WindowInterfaceFactory::getBackend())
        return backend->createProgressBar(title);
    return std::make_unique<HiddenProgressBar>();
}

bool ProgressBarInterface::isRunning() { return runningBars > 0; }

} // namespace qev::ui
