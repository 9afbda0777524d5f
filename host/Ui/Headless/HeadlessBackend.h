#pragma once

#include "HostUiExport.h"
#include "Ui/Headless/HeadlessListControl.h"
#include "Ui/Headless/HeadlessProgressBar.h"
#include "Ui/Headless/HeadlessPropertyGrid.h"
#include "Ui/Headless/HeadlessWindow.h"
#include "Ui/Window/Dialog.h"
#include "Ui/WindowBackend.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace qev::ui {

class ListControl;
class PropertyGridControl;

/// A back end without a screen. Windows, focus, rows and menus are plain data, which tests and the
/// command line read and drive as a user would; what a user cannot reach cannot be driven.
///
/// Example:
///
///     auto const backend = HeadlessBackend::install();
///     auto const dialog = backend->createDialog({800, 600});
///     backend->addPlaceholder(dialog, 101, {10, 10, 790, 560});
///     ... a control makes its window over the placeholder ...
///     auto& grid = *backend->getPropertyGrid(*control);
///     grid.type(grid.findRow({"Pset_WallCommon", "FireRating"}), "F90");
class HOSTUI_EXPORT HeadlessBackend final : public WindowBackend,
                                            public std::enable_shared_from_this<HeadlessBackend>
{
public:
    static constexpr Size screenSize{1920, 1080};

    /// Chooses from a menu that opens: the index of an entry, or nothing.
    using MenuAnswer = std::function<std::optional<std::size_t>(PopupMenu const&)>;

    /// Makes a new back end the current one.
    static std::shared_ptr<HeadlessBackend> install();

    /// A new dialog, shown. The caller holds it; it ends with the last who does.
    [[nodiscard]] std::shared_ptr<Dialog> createDialog(Size const& size, std::string const& title = {});
    /// A child as a dialog's layout has it, to be replaced by a control of that id.
    void addPlaceholder(std::shared_ptr<Dialog> const& dialog, int controlId,
                        WindowPlacement const& placement);

    /// The platform side of a control; null when the control has none here.
    [[nodiscard]] std::shared_ptr<HeadlessPropertyGrid>
    getPropertyGrid(PropertyGridControl const& control) const;
    [[nodiscard]] std::shared_ptr<HeadlessListControl> getListControl(ListControl const& control) const;
    /// The platform window of \p handle; null when it is gone.
    [[nodiscard]] std::shared_ptr<HeadlessWindow> getPlatformWindow(WindowHandle const& handle) const;

    void setCursorPosition(std::optional<Position> position) { m_cursorPosition = position; }
    /// Moves the focus: the window that had it hears of its loss once it is gone.
    void setFocusedWindow(std::shared_ptr<HeadlessWindow> const& window);
    /// Takes the focus away if \p window or one below it has it.
    void dropFocusBelow(HeadlessWindow const& window);

    /// Answers the menus that open from now on. Without an answer nothing is chosen.
    void setMenuAnswer(MenuAnswer answer) { m_menuAnswer = std::move(answer); }
    /// The messages shown so far; each was closed at once.
    [[nodiscard]] std::vector<MessageBox::Message> const& getMessages() const { return m_messages; }

    /// Looks at each step of the progress bars that begin from now on, and can stop the operation.
    void setProgressAnswer(HeadlessProgressBar::Answer answer) { m_progressAnswer = std::move(answer); }
    /// What the progress bars of running operations show, the outermost first.
    [[nodiscard]] std::vector<HeadlessProgress> getProgress() const;

    /// All windows that stand alone, with those below them, as lines of text.
    [[nodiscard]] std::string dump() const;

    void removeTopLevelWindow(HeadlessWindow const& window);

    WindowHandle createWindow(WindowCreation const& creation) override;
    std::unique_ptr<WindowInterface> createInterface(WindowHandle const& handle) override;
    [[nodiscard]] std::optional<Position> getCursorPosition() const override { return m_cursorPosition; }
    [[nodiscard]] WindowHandle getFocusedWindow() const override;
    [[nodiscard]] bool isDescendant(WindowHandle const& window, WindowHandle const& ancestor) const override;
    void showMessage(MessageBox::Message message) override;
    std::optional<std::size_t> showPopupMenu(PopupMenu const& menu, Position const& position) override;
    [[nodiscard]] std::unique_ptr<ProgressBarInterface> createProgressBar(std::string const& title) override;

    /// Puts \p window below \p owner, or on its own for a null owner.
    void insertWindow(std::shared_ptr<HeadlessWindow> const& window, HeadlessWindow* owner);

private:
    std::unordered_map<WindowHandle, std::weak_ptr<HeadlessWindow>> m_windows;
    std::vector<std::shared_ptr<HeadlessWindow>> m_topLevelWindows;
    std::weak_ptr<HeadlessWindow> m_focusedWindow;
    std::optional<Position> m_cursorPosition;
    MenuAnswer m_menuAnswer;
    std::vector<MessageBox::Message> m_messages;
    HeadlessProgressBar::Answer m_progressAnswer;
    std::vector<std::weak_ptr<HeadlessProgress const>> m_progress;
};

} // namespace qev::ui
