#include "Ui/Qt/QtBackend.h"

#include "Ui/Qt/ListControl/QtListControl.h"
#include "Ui/Qt/ListControl/QtListControlInterface.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/QtDialog.h"
#include "Ui/Qt/QtInterface.h"
#include "Ui/Qt/QtProgressBar.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Details/WindowClassName.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/DialogControl.h"
#include "Ui/Window/GroupBox.h"
#include "Ui/Window/PopupMenu.h"

#include <algorithm>
#include <QApplication>
#include <QCursor>
#include <QGroupBox>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <utility>
#include <vector>

namespace qev::ui {

namespace {

class QtDialogInterface final : public QtInterface<DialogInterface>
{
public:
    using QtInterface::QtInterface;

    void setTitle(std::string const& title) override
    {
        if (auto* const widget = getWidget())
            widget->setWindowTitle(toQString(title));
    }
    [[nodiscard]] std::string getTitle() const override
    {
        auto const* const widget = getWidget();
        return widget ? fromQString(widget->windowTitle()) : std::string();
    }
};

class QtPropertyGridInterface final : public QtInterface<PropertyGridControlInterface>
{
public:
    QtPropertyGridInterface(QtPropertyGrid& grid, int controlId)
        : QtInterface(grid, WindowClass::PropertyGridControl, controlId)
        , m_model(grid.getModel())
    {
    }

    [[nodiscard]] std::shared_ptr<PropertyGridModel> getModel() const override { return m_model; }
    void adjustLayout() override
    {
        if (auto* const grid = static_cast<QtPropertyGrid*>(getWidget()))
            grid->adjustLayout();
    }
    void showRow(PropertyGridRow& row) override
    {
        if (auto* const grid = static_cast<QtPropertyGrid*>(getWidget()))
            grid->showRow(row);
    }
    [[nodiscard]] std::shared_ptr<PropertyGridRow> getCurrentRow() const override
    {
        auto const* const grid = static_cast<QtPropertyGrid*>(getWidget());
        return grid ? grid->getCurrentRow() : nullptr;
    }

private:
    std::shared_ptr<PropertyGridModel> m_model;
};

/// \p style means something for lists only.
QWidget* makeWidget(WindowClass windowClass, QWidget* parent, unsigned int style = 0)
{
    switch (windowClass) {
    case WindowClass::PropertyGridControl:
        return new QtPropertyGrid(parent);
    case WindowClass::ListControl:
        return new QtListControl(style, parent);
    case WindowClass::Dialog:
        return new QtDialog(parent);
    case WindowClass::GroupBox:
        return new QGroupBox(parent);
    default:
        return new QWidget(parent);
    }
}

QMessageBox::Icon toQtIcon(MessageBox::Icon icon)
{
    switch (icon) {
    case MessageBox::Icon::None:
        return QMessageBox::NoIcon;
    case MessageBox::Icon::Information:
        return QMessageBox::Information;
    case MessageBox::Icon::Warning:
        return QMessageBox::Warning;
    case MessageBox::Icon::Error:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// The window that a message is to stand over: one that goes with its focus would take the message along.
QWidget* findMessageParent()
{
    auto* parent = QApplication::activeWindow();
    while (auto const* const list = dynamic_cast<QtListControl*>(parent)) {
        if (!list->isPopup())
            break;
        parent = list->parentWidget() ? list->parentWidget()->window() : nullptr;
    }
    return parent;
}

void fireFocus(WindowHandle const& handle, bool hasFocus)
{
    auto const window = details::WindowInterfaceFactory::pWindowFromHandle_(handle);
    if (!window)
        return;
    window->onFocusChanged(hasFocus);
    fireEvent(window->onFocus, hasFocus);
}

} // namespace

std::shared_ptr<QtBackend> QtBackend::install()
{
    auto backend = std::make_shared<QtBackend>();
    details::WindowInterfaceFactory::setBackend(backend);
    return backend;
}

QtBackend::QtBackend()
    : m_focusConnection(
          QObject::connect(qApp, &QApplication::focusChanged,
                           [this](QWidget* previous, QWidget* current) { tellFocus(previous, current); }))
{
}

QtBackend::~QtBackend() { QObject::disconnect(m_focusConnection); }

std::shared_ptr<Dialog> QtBackend::createDialog(Size const& size, std::string const& title)
{
    WindowPlacement const placement{0, 0, static_cast<int>(size.first), static_cast<int>(size.second)};
    auto dialog = Window::create<Dialog>(nullptr, 0, 0, placement);
    if (!dialog)
        return nullptr;
    dialog->setTitle(title);
    dialog->show();
    return dialog;
}

WindowHandle QtBackend::addDialogWidget(QWidget& widget)
{
    return registerWidget(widget, WindowClass::Dialog, 0);
}

void QtBackend::addPlaceholder(std::shared_ptr<Dialog> const& dialog, int controlId,
                               WindowPlacement const& placement)
{
    auto* const owner = getWidget(dialog->getHandle());
    if (!owner)
        return;
    auto* const widget = makeWidget(WindowClass::GroupBox, owner);
    auto const window =
        Window::attachToChild<GroupBox>(dialog, registerWidget(*widget, WindowClass::GroupBox, controlId));
    window->setPlacement(placement);
    widget->show();
}

QtPropertyGrid* QtBackend::getPropertyGrid(PropertyGridControl const& control) const
{
    return dynamic_cast<QtPropertyGrid*>(getWidget(control.getHandle()));
}

QtListControl* QtBackend::getListControl(ListControl const& control) const
{
    return dynamic_cast<QtListControl*>(getWidget(control.getHandle()));
}

QWidget* QtBackend::getWidget(WindowHandle const& handle) const
{
    auto const* const entry = findEntry(handle);
    return entry ? entry->widget.data() : nullptr;
}

WindowHandle QtBackend::createWindow(WindowCreation const& creation)
{
    auto const windowClass = details::windowClassFromName(creation.className);
    auto* const owner = getWidget(creation.owner);
    if (!windowClass || (creation.owner.isValid() && !owner))
        return {};
    auto* const widget = makeWidget(*windowClass, owner, creation.style);
    auto const& placement = creation.placement;
    widget->setGeometry(placement.left, placement.top, placement.right - placement.left,
                        placement.bottom - placement.top);
    return registerWidget(*widget, *windowClass, creation.controlId);
}

std::unique_ptr<WindowInterface> QtBackend::createInterface(WindowHandle const& handle)
{
    auto const* const entry = findEntry(handle);
    if (!entry)
        return nullptr;
    auto& widget = *entry->widget;
    if (auto* const grid = dynamic_cast<QtPropertyGrid*>(&widget))
        return std::make_unique<QtPropertyGridInterface>(*grid, entry->controlId);
    if (auto* const list = dynamic_cast<QtListControl*>(&widget))
        return std::make_unique<QtListControlInterface>(*list, entry->controlId);
    if (entry->windowClass == WindowClass::Dialog)
        return std::make_unique<QtDialogInterface>(widget, entry->windowClass, entry->controlId);
    if (entry->windowClass == WindowClass::Window)
        return std::make_unique<QtInterface<WindowInterface>>(widget, entry->windowClass, entry->controlId);
    return std::make_unique<QtInterface<DialogControlInterface>>(widget, entry->windowClass,
                                                                 entry->controlId);
}

Size QtBackend::getDefaultWindowSize(WindowClass windowClass) const
{
    if (windowClass != WindowClass::PropertyGridControl && windowClass != WindowClass::DialogControl)
        return WindowBackend::getDefaultWindowSize(windowClass);
    QFontMetrics const metrics(QApplication::font());
    return {static_cast<unsigned int>(metrics.averageCharWidth() * 20),
            static_cast<unsigned int>(metrics.height() + metrics.height() / 2)};
}

std::optional<Position> QtBackend::getCursorPosition() const
{
    auto const position = QCursor::pos();
    return Position{position.x(), position.y()};
}

WindowHandle QtBackend::getFocusedWindow() const { return getWindowAround(QApplication::focusWidget()); }

bool QtBackend::isDescendant(WindowHandle const& window, WindowHandle const& ancestor) const
{
    auto const* const widget = getWidget(window);
    auto const* const ancestorWidget = getWidget(ancestor);
    return widget && ancestorWidget && (widget == ancestorWidget || ancestorWidget->isAncestorOf(widget));
}

void QtBackend::showMessage(MessageBox::Message message)
{
    // The window above may go while the message is up, and takes it along.
    QPointer const box(new QMessageBox(toQtIcon(message.icon), toQString(message.title),
                                       toQString(message.text), QMessageBox::Ok, findMessageParent()));
    box->exec();
    delete box;
    if (message.onClosed)
        message.onClosed();
}

std::optional<std::size_t> QtBackend::showPopupMenu(PopupMenu const& menu, Position const& position)
{
    QMenu widget;
    std::vector<QAction const*> actions;
    for (auto const& entry : menu.getEntries()) {
        if (entry->beginsGroup() && !actions.empty())
            widget.addSeparator();
        auto* const action = widget.addAction(toQString(entry->getText()));
        action->setEnabled(entry->isEnabled());
        actions.push_back(action);
    }
    auto const* const chosen = widget.exec(QPoint(position.x, position.y));
    auto const found = std::find(actions.begin(), actions.end(), chosen);
    return found == actions.end() ? std::nullopt
                                  : std::optional(static_cast<std::size_t>(found - actions.begin()));
}

std::unique_ptr<ProgressBarInterface> QtBackend::createProgressBar(std::string const& title)
{
    return std::make_unique<QtProgressBar>(toQString(title));
}

WindowHandle QtBackend::registerWidget(QWidget& widget, WindowClass windowClass, int controlId)
{
    std::erase_if(m_entries, [](auto const& entry) { return entry.second.widget.isNull(); });
    WindowHandle const handle(&widget);
    m_entries.insert_or_assign(handle, Entry{&widget, windowClass, controlId});
    return handle;
}

QtBackend::Entry const* QtBackend::findEntry(WindowHandle const& handle) const
{
    auto const found = m_entries.find(handle);
    return found == m_entries.end() || found->second.widget.isNull() ? nullptr : &found->second;
}

WindowHandle QtBackend::getWindowAround(QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget())
        if (WindowHandle const handle(widget); findEntry(handle))
            return handle;
    return {};
}

void QtBackend::tellFocus(QWidget* previous, QWidget* current) const
{
    auto const previousWindow = getWindowAround(previous);
    auto const currentWindow = getWindowAround(current);
    if (previousWindow == currentWindow)
        return;
    fireFocus(previousWindow, false);
    fireFocus(currentWindow, true);
}

} // namespace qev::ui
