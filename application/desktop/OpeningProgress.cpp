#include "OpeningProgress.h"

namespace qev::application {

namespace {

constexpr int steps = 1000;
constexpr int patienceMilliseconds = 500;

} // namespace

OpeningProgress::OpeningProgress(QString const& text, QWidget* parent)
    : m_dialog(text, QProgressDialog::tr("Cancel"), 0, steps, parent)
{
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(patienceMilliseconds);
}

bool OpeningProgress::operator()(std::uint64_t done, std::uint64_t total)
{
    if (total > 0)
        m_dialog.setValue(static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * steps));
    return !m_dialog.wasCanceled();
}

} // namespace qev::application
