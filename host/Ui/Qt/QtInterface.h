#pragma once

#include "Ui/Qt/QtBackend.h"
#include "Ui/Window/WindowInterface.h"

#include <algorithm>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>

namespace qev::ui {

/// The part of a window interface that all classes of widget share. \p Base is `WindowInterface` or an
/// interface derived from it.
///
/// The widget belongs to its Qt parent and may go first; operations then do nothing.
template <class Base>
class QtInterface : public Base
{
public:
    QtInterface(QWidget& widget, WindowClass windowClass, int controlId)
        : m_widget(&widget)
        , m_windowClass(windowClass)
        , m_controlId(controlId)
    {
    }

    [[nodiscard]] WindowHandle getHandle() const override
    {
        return m_widget ? WindowHandle(m_widget.data()) : WindowHandle();
    }
    [[nodiscard]] WindowClass getWindowClass() const override { return m_windowClass; }
    [[nodiscard]] int getDialogControlId() const override { return m_controlId; }

    void show() override { setVisible(true); }
    void hide() override { setVisible(false); }
    [[nodiscard]] bool isVisible() const override { return m_widget && m_widget->isVisible(); }
    void enable(bool enabled) override
    {
        if (m_widget)
            m_widget->setEnabled(enabled);
    }
    [[nodiscard]] bool isEnabled() const override { return m_widget && m_widget->isEnabled(); }
    void setFocus() override
    {
        if (m_widget)
            m_widget->setFocus(Qt::OtherFocusReason);
    }

    void suspendRedraw() override
    {
        if (++m_redrawSuspensions == 1 && m_widget)
            m_widget->setUpdatesEnabled(false);
    }
    void resumeRedraw() override
    {
        if (--m_redrawSuspensions == 0 && m_widget)
            m_widget->setUpdatesEnabled(true);
    }

    [[nodiscard]] WindowPlacement getPlacement() const override
    {
        auto const area = m_widget ? m_widget->geometry() : QRect();
        return {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
    }
    void setPlacement(WindowPlacement const& placement) override
    {
        if (m_widget)
            m_widget->setGeometry(toRect(placement));
    }
    [[nodiscard]] Size getClientAreaSize() const override
    {
        return m_widget ? toSize(m_widget->size()) : Size();
    }
    [[nodiscard]] Size getSize() const override
    {
        return m_widget ? toSize(m_widget->frameGeometry().size()) : Size();
    }
    [[nodiscard]] Position getPositionOnScreen() const override
    {
        auto const position = m_widget ? m_widget->mapToGlobal(QPoint(0, 0)) : QPoint();
        return {position.x(), position.y()};
    }
    [[nodiscard]] Position getOffscreenOffset() const override
    {
        if (!m_widget || !m_widget->screen())
            return {};
        QRect const window(m_widget->mapToGlobal(QPoint(0, 0)), m_widget->size());
        // A window that was not shown yet does not know on which screen it will stand.
        auto const* const screenThere = QGuiApplication::screenAt(window.topLeft());
        auto const screen = (screenThere ? screenThere : m_widget->screen())->availableGeometry();
        return {getOffsetInto(window.left(), window.width(), screen.left(), screen.width()),
                getOffsetInto(window.top(), window.height(), screen.top(), screen.height())};
    }
    void moveDelta(Position const& delta) override
    {
        if (m_widget)
            m_widget->move(m_widget->pos() + QPoint(delta.x, delta.y));
    }

    void setTabOrder(WindowHandle const& predecessor) override
    {
        auto* const named = static_cast<QWidget*>(predecessor.getNativeWindow());
        auto* const before = named ? named : findLastSibling();
        if (m_widget && before)
            QWidget::setTabOrder(before, m_widget);
    }
    void onChildCreated(WindowHandle const& child) override
    {
        // What has a window of its own is shown when its owner says so.
        auto* const widget = static_cast<QWidget*>(child.getNativeWindow());
        if (widget && !widget->isWindow())
            widget->show();
    }

    void releasePlatformWindow(bool destroy) override
    {
        if (!destroy || !m_widget)
            return;
        // Later, since this may come from an event of the very widget.
        m_widget->hide();
        m_widget->deleteLater();
        m_widget.clear();
    }

protected:
    [[nodiscard]] QWidget* getWidget() const { return m_widget; }

private:
    static QRect toRect(WindowPlacement const& placement)
    {
        return {placement.left, placement.top, placement.right - placement.left,
                placement.bottom - placement.top};
    }
    static Size toSize(QSize const& size)
    {
        return {static_cast<unsigned int>(std::max(0, size.width())),
                static_cast<unsigned int>(std::max(0, size.height()))};
    }
    static int getOffsetInto(int begin, int length, int limitBegin, int limitLength)
    {
        if (begin < limitBegin || length > limitLength)
            return limitBegin - begin;
        return std::min(0, limitBegin + limitLength - begin - length);
    }
    /// The last of the other widgets beside this one that take the focus; null when there is none.
    [[nodiscard]] QWidget* findLastSibling() const
    {
        auto* const parent = m_widget ? m_widget->parentWidget() : nullptr;
        QWidget* last = nullptr;
        if (!parent)
            return last;
        for (auto* next = parent->nextInFocusChain(); next != parent; next = next->nextInFocusChain())
            if (next->parentWidget() == parent && next != m_widget && next->focusPolicy() != Qt::NoFocus)
                last = next;
        return last;
    }
    void setVisible(bool visible)
    {
        if (m_widget)
            m_widget->setVisible(visible);
    }

    QPointer<QWidget> m_widget;
    WindowClass m_windowClass;
    int m_controlId;
    int m_redrawSuspensions = 0;
};

} // namespace qev::ui
