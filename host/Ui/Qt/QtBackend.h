#pragma once

#include "HostUiQtExport.h"
#include "Ui/Window/Dialog.h"
#include "Ui/WindowBackend.h"

#include <memory>
#include <optional>
#include <QPointer>
#include <QWidget>
#include <string>
#include <unordered_map>

namespace qev::ui {

class ListControl;
class PropertyGridControl;
class QtListControl;
class QtPropertyGrid;

/// The back end of Qt widgets.
///
/// A window handle is the address of its `QWidget`. Widgets have their place in Qt's own order of
/// ownership; placements are in Qt's device-independent pixels. Needs a `QApplication`. Property grids,
/// lists, dialogs, group boxes and plain controls can be made.
///
/// Example:
///
///     auto const backend = QtBackend::install();
///     auto const dialog = backend->createDialog({800, 600}, "Properties");
///     backend->addPlaceholder(dialog, 101, {10, 10, 790, 560});
class HOSTUIQT_EXPORT QtBackend final : public WindowBackend
{
public:
    /// Makes a new back end the current one.
    static std::shared_ptr<QtBackend> install();

    QtBackend();
    ~QtBackend() override;

    /// A new dialog with a window of its own, shown. The caller holds it.
    [[nodiscard]] std::shared_ptr<Dialog> createDialog(Size const& size, std::string const& title = {});
    /// A handle for \p widget, which stands somewhere among other widgets and stays owned there, as one that
    /// a dialog can be attached to (`Window::attachTo`).
    [[nodiscard]] WindowHandle addDialogWidget(QWidget& widget);
    /// A child as a dialog's layout has it, to be replaced by a control of that id.
    void addPlaceholder(std::shared_ptr<Dialog> const& dialog, int controlId,
                        WindowPlacement const& placement);

    /// The widget of a grid; null when the control has none here.
    [[nodiscard]] QtPropertyGrid* getPropertyGrid(PropertyGridControl const& control) const;
    /// The widget of a list; null when the control has none here.
    [[nodiscard]] QtListControl* getListControl(ListControl const& control) const;
    /// The widget of a handle; null when it is gone or of another back end.
    [[nodiscard]] QWidget* getWidget(WindowHandle const& handle) const;

    WindowHandle createWindow(WindowCreation const& creation) override;
    std::unique_ptr<WindowInterface> createInterface(WindowHandle const& handle) override;
    [[nodiscard]] Size getDefaultWindowSize(WindowClass windowClass) const override;
    [[nodiscard]] std::optional<Position> getCursorPosition() const override;
    [[nodiscard]] WindowHandle getFocusedWindow() const override;
    [[nodiscard]] bool isDescendant(WindowHandle const& window, WindowHandle const& ancestor) const override;
    void showMessage(MessageBox::Message message) override;
    std::optional<std::size_t> showPopupMenu(PopupMenu const& menu, Position const& position) override;
    [[nodiscard]] std::unique_ptr<ProgressBarInterface> createProgressBar(std::string const& title) override;

private:
    struct Entry
    {
        QPointer<QWidget> widget;
        WindowClass windowClass = WindowClass::Window;
        int controlId = 0;
    };

    WindowHandle registerWidget(QWidget& widget, WindowClass windowClass, int controlId);
    [[nodiscard]] Entry const* findEntry(WindowHandle const& handle) const;
    /// The nearest window of this back end that holds \p widget.
    [[nodiscard]] WindowHandle getWindowAround(QWidget* widget) const;
    void tellFocus(QWidget* previous, QWidget* current) const;

    std::unordered_map<WindowHandle, Entry> m_entries;
    QMetaObject::Connection m_focusConnection;
};

} // namespace qev::ui
