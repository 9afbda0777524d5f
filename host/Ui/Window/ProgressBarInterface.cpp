#include "Ui/Window/ProgressBarInterface.h"

namespace qev::ui {

namespace {

int runningBars = 0;

} // namespace

ProgressBarInterface::ProgressBarInterface() { ++runningBars; }

ProgressBarInterface::~ProgressBarInterface() { --runningBars; }

bool ProgressBarInterface::isRunning() { return runningBars > 0; }

} // namespace qev::ui
