#pragma once

#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Headless/HeadlessWindow.h"
#include "Ui/Window/WindowInterface.h"

#include <memory>
#include <utility>

namespace qev::ui {

/// The part of a window interface that all classes of headless window share. \p Base is `WindowInterface` or
/// an interface derived from it.
template <class Base>
class HeadlessInterface : public Base
{
public:
    explicit HeadlessInterface(std::shared_ptr<HeadlessWindow> platformWindow)
        : m_platformWindow(std::move(platformWindow))
    {
    }

    [[nodiscard]] WindowHandle getHandle() const override
    {
        return m_platformWindow->isDestroyed() ? WindowHandle() : m_platformWindow->getHandle();
    }
    [[nodiscard]] WindowClass getWindowClass() const override { return m_platformWindow->getWindowClass(); }
    [[nodiscard]] int getDialogControlId() const override { return m_platformWindow->getControlId(); }

    void show() override { m_platformWindow->setVisible(true); }
    void hide() override { m_platformWindow->setVisible(false); }
    [[nodiscard]] bool isVisible() const override { return m_platformWindow->isVisible(); }
    void enable(bool enabled) override { m_platformWindow->setEnabled(enabled); }
    [[nodiscard]] bool isEnabled() const override { return m_platformWindow->isEnabled(); }
    void setFocus() override { m_platformWindow->setFocus(); }

    void suspendRedraw() override { m_platformWindow->suspendRedraw(); }
    void resumeRedraw() override { m_platformWindow->resumeRedraw(); }

    [[nodiscard]] WindowPlacement getPlacement() const override { return m_platformWindow->getPlacement(); }
    void setPlacement(WindowPlacement const& placement) override
    {
        m_platformWindow->setPlacement(placement);
    }
    [[nodiscard]] Size getClientAreaSize() const override { return m_platformWindow->getSize(); }
    [[nodiscard]] Size getSize() const override { return m_platformWindow->getSize(); }
    [[nodiscard]] Position getPositionOnScreen() const override
    {
        return m_platformWindow->getPositionOnScreen();
    }
    [[nodiscard]] Position getOffscreenOffset() const override
    {
        return m_platformWindow->getOffscreenOffset();
    }
    void moveDelta(Position const& delta) override
    {
        auto const& old = m_platformWindow->getPlacement();
        m_platformWindow->setPlacement(
            {old.left + delta.x, old.top + delta.y, old.right + delta.x, old.bottom + delta.y});
    }

    void setTabOrder(WindowHandle const& predecessor) override
    {
        m_platformWindow->moveBehind(static_cast<HeadlessWindow const*>(predecessor.getNativeWindow()));
    }
    void onChildCreated(WindowHandle const& /*child*/) override {}

    void releasePlatformWindow(bool destroy) override
    {
        if (destroy && !m_platformWindow->isDestroyed())
            m_platformWindow->destroy();
    }

    [[nodiscard]] HeadlessWindow& getPlatformWindow() const { return *m_platformWindow; }

private:
    std::shared_ptr<HeadlessWindow> m_platformWindow;
};

} // namespace qev::ui
