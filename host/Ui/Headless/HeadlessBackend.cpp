#include "Ui/Headless/HeadlessBackend.h"

#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Details/WindowClassName.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/GroupBox.h"
#include "Ui/Window/PopupMenu.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

std::shared_ptr<HeadlessWindow> makePlatformWindow(WindowCreation const& creation)
{
    auto const windowClass = details::windowClassFromName(creation.className);
    if (!windowClass)
        return nullptr;
    switch (*windowClass) {
    case WindowClass::PropertyGridControl:
        return std::make_shared<HeadlessPropertyGrid>(creation.controlId, creation.placement);
    case WindowClass::ListControl:
        return std::make_shared<HeadlessListControl>(creation.controlId, creation.placement, creation.style);
    default:
        return std::make_shared<HeadlessWindow>(*windowClass, creation.controlId, creation.placement);
    }
}

/// Tells the window, or the one around it where it is a mere part such as an editor.
void tellFocus(HeadlessWindow const* platformWindow, bool hasFocus)
{
    std::shared_ptr<Window> window;
    for (; platformWindow && !window; platformWindow = platformWindow->getOwner())
        window = platformWindow->getWindow();
    if (!window)
        return;
    window->onFocusChanged(hasFocus);
    fireEvent(window->onFocus, hasFocus);
}

} // namespace

std::shared_ptr<HeadlessBackend> HeadlessBackend::install()
{
    auto backend = std::make_shared<HeadlessBackend>();
    details::WindowInterfaceFactory::setBackend(backend);
    return backend;
}

std::shared_ptr<Dialog> HeadlessBackend::createDialog(Size const& size, std::string const& title)
{
    WindowPlacement const placement{0, 0, static_cast<int>(size.first), static_cast<int>(size.second)};
    auto dialog = Window::create<Dialog>(nullptr, 0, 0, placement);
    if (!dialog)
        return nullptr;
    dialog->setTitle(title);
    dialog->show();
    return dialog;
}

void HeadlessBackend::addPlaceholder(std::shared_ptr<Dialog> const& dialog, int controlId,
                                     WindowPlacement const& placement)
{
    auto const owner = getPlatformWindow(dialog->getHandle());
    if (!owner)
        return;
    auto const platformWindow = std::make_shared<HeadlessWindow>(WindowClass::GroupBox, controlId, placement);
    insertWindow(platformWindow, owner.get());
    // The dialog's child manager keeps the window.
    auto const window = Window::attachToChild<GroupBox>(dialog, platformWindow->getHandle());
    static_cast<void>(window);
}

std::shared_ptr<HeadlessPropertyGrid>
HeadlessBackend::getPropertyGrid(PropertyGridControl const& control) const
{
    return std::dynamic_pointer_cast<HeadlessPropertyGrid>(getPlatformWindow(control.getHandle()));
}

std::shared_ptr<HeadlessListControl> HeadlessBackend::getListControl(ListControl const& control) const
{
    return std::dynamic_pointer_cast<HeadlessListControl>(getPlatformWindow(control.getHandle()));
}

std::shared_ptr<HeadlessWindow> HeadlessBackend::getPlatformWindow(WindowHandle const& handle) const
{
    auto const found = m_windows.find(handle);
    auto window = found == m_windows.end() ? nullptr : found->second.lock();
    return window && !window->isDestroyed() ? window : nullptr;
}

void HeadlessBackend::setFocusedWindow(std::shared_ptr<HeadlessWindow> const& window)
{
    auto const previous = m_focusedWindow.lock();
    if (previous == window)
        return;
    m_focusedWindow = window;
    tellFocus(previous.get(), false);
    // The loss may have moved the focus on.
    if (window && m_focusedWindow.lock() == window)
        tellFocus(window.get(), true);
}

void HeadlessBackend::dropFocusBelow(HeadlessWindow const& window)
{
    auto const focused = m_focusedWindow.lock();
    if (focused && focused->isDescendantOf(window))
        setFocusedWindow(nullptr);
}

std::vector<HeadlessProgress> HeadlessBackend::getProgress() const
{
    std::vector<HeadlessProgress> running;
    for (auto const& entry : m_progress)
        if (auto const progress = entry.lock())
            running.push_back(*progress);
    return running;
}

std::string HeadlessBackend::dump() const
{
    std::string text;
    for (auto const& window : m_topLevelWindows)
        text += window->dumpTree();
    return text;
}

void HeadlessBackend::removeTopLevelWindow(HeadlessWindow const& window)
{
    std::erase_if(m_topLevelWindows, [&](auto const& candidate) { return candidate.get() == &window; });
}

WindowHandle HeadlessBackend::createWindow(WindowCreation const& creation)
{
    auto const window = makePlatformWindow(creation);
    if (!window)
        return {};
    auto const owner = getPlatformWindow(creation.owner);
    if (creation.owner.isValid() && !owner)
        return {};
    insertWindow(window, owner.get());
    return window->getHandle();
}

std::unique_ptr<WindowInterface> HeadlessBackend::createInterface(WindowHandle const& handle)
{
    auto const window = getPlatformWindow(handle);
    return window ? window->createInterface() : nullptr;
}

WindowHandle HeadlessBackend::getFocusedWindow() const
{
    auto const focused = m_focusedWindow.lock();
    return focused ? focused->getHandle() : WindowHandle();
}

bool HeadlessBackend::isDescendant(WindowHandle const& window, WindowHandle const& ancestor) const
{
    auto const platformWindow = getPlatformWindow(window);
    auto const platformAncestor = getPlatformWindow(ancestor);
    return platformWindow && platformAncestor && platformWindow->isDescendantOf(*platformAncestor);
}

void HeadlessBackend::showMessage(MessageBox::Message message)
{
    m_messages.push_back(std::move(message));
    if (auto const onClosed = m_messages.back().onClosed)
        onClosed();
}

std::optional<std::size_t> HeadlessBackend::showPopupMenu(PopupMenu const& menu, Position const& /*position*/)
{
    auto const answer = m_menuAnswer ? m_menuAnswer(menu) : std::nullopt;
    if (!answer || *answer >= menu.getEntries().size() || !menu.getEntries()[*answer]->isEnabled())
        return std::nullopt;
    return answer;
}

std::unique_ptr<ProgressBarInterface> HeadlessBackend::createProgressBar(std::string const& title)
{
    std::erase_if(m_progress, [](auto const& entry) { return entry.expired(); });
    auto const progress = std::make_shared<HeadlessProgress>();
    progress->title = title;
    m_progress.push_back(progress);
    return std::make_unique<HeadlessProgressBar>(progress, m_progressAnswer);
}

void HeadlessBackend::insertWindow(std::shared_ptr<HeadlessWindow> const& window, HeadlessWindow* owner)
{
    std::erase_if(m_windows, [](auto const& entry) { return entry.second.expired(); });
    m_windows[window->getHandle()] = window;
    window->setBackend(weak_from_this());
    if (owner)
        owner->addChild(window);
    else
        m_topLevelWindows.push_back(window);
}

} // namespace qev::ui
