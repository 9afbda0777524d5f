#pragma once

#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include "FoundationClasses/AllEntities.h"
#include "host/Ui/UiTest.h"
#include "kit/ModelBuilder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/ToySchema.h"
#include "Ui/Window/PopupMenu.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// A popup over a grid that has the focus, made as an edit controller makes it.
class PopupFixture : public UiTest
{
protected:
    PopupFixture()
        : grid(createGrid())
    {
        backend->setCursorPosition(ui::Position{100, 200});
        grid->setFocus();
    }

    [[nodiscard]] std::unique_ptr<fc::ui::ListPopup::Control> makePopup()
    {
        auto popup = std::make_unique<fc::ui::ListPopup::Control>("Popup");
        auto const placement = popup->getControlPlacement(dialog, std::nullopt, std::nullopt);
        auto const control = ui::Window::create<ui::ListControl>(dialog, popup->getStyleFlags() | 0x24U, 0,
                                                                 placement.placement, 10);
        popup->setControl(control);
        popup->onControlCreated(placement.listSettings);
        window = control;
        list = backend->getListControl(*control);
        return popup;
    }

    /// The entries of the menus that open are kept; the one at this place is chosen.
    void chooseFromMenu(std::optional<std::size_t> chosen)
    {
        backend->setMenuAnswer([this, chosen](ui::PopupMenu const& menu) {
            menuEntries.clear();
            for (auto const& entry : menu.getEntries())
                menuEntries.push_back(entry->getText());
            return chosen;
        });
    }

    /// The owner's answer, of columns too that a list does not ask for.
    [[nodiscard]] std::string headerText(std::size_t column) const
    {
        return fireEvent(window.lock()->onGetColumnHeaderText, column);
    }
    [[nodiscard]] bool isOpen() const { return !window.expired() && list->isReachable(); }
    void turnElsewhere() { grid->setFocus(); }

    static void expectPopupReport(std::string const& text, std::string const& className,
                                  std::string const& operation)
    {
        expectReport(text, "qev::fc::ui::" + className + "::" + operation,
                     "UI/FoundationClasses/Controllers/" + className);
    }

    using Item = ui::ListControl::ItemInfo;

    Model model;
    std::shared_ptr<ui::PropertyGridControl> grid;
    /// The list of the last popup, which owns it.
    std::weak_ptr<ui::ListControl> window;
    std::shared_ptr<ui::HeadlessListControl> list;
    std::vector<std::string> menuEntries;
};

} // namespace qev::test
