#include "Ui/Window/RedrawGuard.h"

#include "Ui/Window/Window.h"

#include <utility>

namespace qev::ui {

RedrawGuard::RedrawGuard(std::weak_ptr<Window> window)
    : m_window(std::move(window))
{
}

RedrawGuard::~RedrawGuard() { release(); }

RedrawGuard::RedrawGuard(RedrawGuard&& other) noexcept
    : m_window(std::exchange(other.m_window, {}))
{
}

RedrawGuard& RedrawGuard::operator=(RedrawGuard&& other) noexcept
{
    if (this != &other) {
        release();
        m_window = std::exchange(other.m_window, {});
    }
    return *this;
}

void RedrawGuard::release()
{
    if (auto const window = m_window.lock())
        window->resumeRedraw();
    m_window.reset();
}

} // namespace qev::ui
