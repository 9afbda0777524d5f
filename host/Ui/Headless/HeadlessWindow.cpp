#include "Ui/Headless/HeadlessWindow.h"

#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Headless/HeadlessInterface.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/DialogControlInterface.h"
#include "Ui/Window/DialogInterface.h"
#include "Ui/Window/Window.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

class HeadlessDialogInterface final : public HeadlessInterface<DialogInterface>
{
public:
    using HeadlessInterface::HeadlessInterface;

    void setTitle(std::string const& title) override { getPlatformWindow().setTitle(title); }
    [[nodiscard]] std::string getTitle() const override { return getPlatformWindow().getTitle(); }
};

char const* getName(WindowClass windowClass)
{
    switch (windowClass) {
    case WindowClass::Window:
        return "Window";
    case WindowClass::Dialog:
        return "Dialog";
    case WindowClass::DialogControl:
        return "DialogControl";
    case WindowClass::GroupBox:
        return "GroupBox";
    case WindowClass::ListControl:
        return "ListControl";
    case WindowClass::PropertyGridControl:
        return "PropertyGridControl";
    }
    return "";
}

std::string getText(WindowPlacement const& placement)
{
    return std::to_string(placement.left) + ',' + std::to_string(placement.top) + ' ' +
           std::to_string(placement.right) + ',' + std::to_string(placement.bottom);
}

/// Puts \p lines at the end of \p text, each behind \p indentation.
void appendLines(std::string& text, std::string const& lines, std::string const& indentation)
{
    for (std::size_t begin = 0; begin < lines.size();) {
        auto const end = std::min(lines.find('\n', begin), lines.size());
        text += indentation + lines.substr(begin, end - begin) + '\n';
        begin = end + 1;
    }
}

/// How far the stretch from \p begin to \p end has to be moved to lie between 0 and \p limit.
int getOffsetInto(int begin, int end, int limit)
{
    if (begin < 0 || end - begin > limit)
        return -begin;
    return end > limit ? limit - end : 0;
}

} // namespace

HeadlessWindow::HeadlessWindow(WindowClass windowClass, int controlId, WindowPlacement const& placement)
    : m_windowClass(windowClass)
    , m_controlId(controlId)
    , m_placement(placement)
{
}

HeadlessWindow::~HeadlessWindow()
{
    for (auto const& child : m_children)
        child->m_owner = nullptr;
}

std::unique_ptr<WindowInterface> HeadlessWindow::createInterface()
{
    if (m_windowClass == WindowClass::Dialog)
        return std::make_unique<HeadlessDialogInterface>(shared_from_this());
    if (m_windowClass == WindowClass::Window)
        return std::make_unique<HeadlessInterface<WindowInterface>>(shared_from_this());
    return std::make_unique<HeadlessInterface<DialogControlInterface>>(shared_from_this());
}

std::shared_ptr<Window> HeadlessWindow::getWindow() const
{
    return details::WindowInterfaceFactory::pWindowFromHandle_(getHandle());
}

void HeadlessWindow::setPlacement(WindowPlacement const& placement)
{
    auto const oldSize = getSize();
    m_placement = placement;
    if (getSize() == oldSize)
        return;
    if (auto const window = getWindow())
        window->onSizeChanged(getSize());
}

Size HeadlessWindow::getSize() const
{
    return {static_cast<unsigned int>(std::max(0, m_placement.right - m_placement.left)),
            static_cast<unsigned int>(std::max(0, m_placement.bottom - m_placement.top))};
}

Position HeadlessWindow::getPositionOnScreen() const
{
    Position position{m_placement.left, m_placement.top};
    if (m_owner && !m_isPlacedOnScreen) {
        auto const ownerPosition = m_owner->getPositionOnScreen();
        position.x += ownerPosition.x;
        position.y += ownerPosition.y;
    }
    return position;
}

Position HeadlessWindow::getOffscreenOffset() const
{
    auto const position = getPositionOnScreen();
    auto const size = getSize();
    auto const screen = HeadlessBackend::screenSize;
    return {
        getOffsetInto(position.x, position.x + static_cast<int>(size.first), static_cast<int>(screen.first)),
        getOffsetInto(position.y, position.y + static_cast<int>(size.second),
                      static_cast<int>(screen.second))};
}

void HeadlessWindow::setVisible(bool visible)
{
    m_isShown = visible;
    if (auto const backend = getBackend(); backend && !visible)
        backend->dropFocusBelow(*this);
}

bool HeadlessWindow::isVisible() const { return m_isShown && (!m_owner || m_owner->isVisible()); }

bool HeadlessWindow::isEnabled() const { return m_isEnabled && (!m_owner || m_owner->isEnabled()); }

bool HeadlessWindow::isReachable() const { return !m_isDestroyed && isVisible() && isEnabled(); }

void HeadlessWindow::setFocus()
{
    if (auto const backend = getBackend(); backend && isReachable())
        backend->setFocusedWindow(shared_from_this());
}

bool HeadlessWindow::hasFocus() const
{
    auto const backend = getBackend();
    return backend && backend->getFocusedWindow() == getHandle();
}

void HeadlessWindow::addChild(std::shared_ptr<HeadlessWindow> child)
{
    child->m_owner = this;
    child->m_backend = m_backend;
    m_children.push_back(std::move(child));
}

void HeadlessWindow::moveBehind(HeadlessWindow const* predecessor)
{
    if (!m_owner || predecessor == this)
        return;
    auto& siblings = m_owner->m_children;
    auto const self = shared_from_this();
    std::erase(siblings, self);
    auto const found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](auto const& sibling) { return sibling.get() == predecessor; });
    siblings.insert(found == siblings.end() ? found : std::next(found), self);
}

bool HeadlessWindow::isDescendantOf(HeadlessWindow const& ancestor) const
{
    return this == &ancestor || (m_owner && m_owner->isDescendantOf(ancestor));
}

std::string HeadlessWindow::dumpTree() const
{
    std::string text;
    appendTree(text, 0);
    return text;
}

void HeadlessWindow::appendTree(std::string& text, std::size_t depth) const
{
    std::string const indentation(2 * depth, ' ');
    text += indentation + getName(m_windowClass);
    if (m_controlId != 0)
        text += ' ' + std::to_string(m_controlId);
    if (!m_title.empty())
        text += " \"" + m_title + '"';
    text += " [" + getText(m_placement) + ']';
    if (!m_isShown)
        text += " hidden";
    if (!m_isEnabled)
        text += " disabled";
    if (hasFocus())
        text += " focus";
    text += '\n';
    appendLines(text, dumpContent(), indentation + "  ");
    for (auto const& child : m_children)
        child->appendTree(text, depth + 1);
}

void HeadlessWindow::destroy()
{
    auto const keepAlive = shared_from_this();
    auto const backend = getBackend();
    markDestroyed();
    if (backend)
        backend->dropFocusBelow(*this);
    if (m_owner)
        std::erase(m_owner->m_children, keepAlive);
    else if (backend)
        backend->removeTopLevelWindow(*this);
    m_owner = nullptr;
}

void HeadlessWindow::markDestroyed()
{
    m_isDestroyed = true;
    for (auto const& child : m_children)
        child->markDestroyed();
}

} // namespace qev::ui
