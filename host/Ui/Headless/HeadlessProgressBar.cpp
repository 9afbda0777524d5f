#include "Ui/Headless/HeadlessProgressBar.h"

#include <utility>

namespace qev::ui {

HeadlessProgressBar::HeadlessProgressBar(std::shared_ptr<HeadlessProgress> progress, Answer answer)
    : m_progress(std::move(progress))
    , m_answer(std::move(answer))
{
}

HeadlessProgressBar::~HeadlessProgressBar() = default;

void HeadlessProgressBar::setProgress(double fraction, std::string const& text)
{
    m_progress->fraction = fraction;
    m_progress->text = text;
    if (m_answer && m_answer(*m_progress))
        m_isCancelled = true;
}

} // namespace qev::ui
