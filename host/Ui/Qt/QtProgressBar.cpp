#include "Ui/Qt/QtProgressBar.h"

#include "Ui/Qt/QtLocalize.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QApplication>

namespace qev::ui {

namespace {

constexpr int steps = 1000;
/// What is over sooner needs no bar.
constexpr int patienceMilliseconds = 500;

} // namespace

QtProgressBar::QtProgressBar(QString const& title)
    : m_dialog(new QProgressDialog(QApplication::activeWindow()))
{
    m_dialog->setWindowTitle(title);
    m_dialog->setLabelText(title);
    m_dialog->setCancelButtonText(getUiText("Progress_Cancel"));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(patienceMilliseconds);
    m_dialog->setRange(0, steps);
    // The bar ends with the operation, which may have more to do after its last step.
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    m_dialog->setValue(0);
}

QtProgressBar::~QtProgressBar() { delete m_dialog; }

void QtProgressBar::setProgress(double fraction, std::string const& text)
{
    if (!m_dialog)
        return;
    if (auto const label = toQString(text); label != m_dialog->labelText())
        m_dialog->setLabelText(label);
    m_dialog->setValue(static_cast<int>(std::clamp(fraction, 0.0, 1.0) * steps));
}

bool QtProgressBar::isCancelled() const { return m_dialog && m_dialog->wasCanceled(); }

} // namespace qev::ui
