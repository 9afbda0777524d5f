#pragma once

#include "Edit/PropertyGridObjectEditor.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Property/PropertySettingsInterface.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Dialog.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qev::application {

/// The object editor over entities of one model, for any back end of the toolkit: its grid, its buttons, and
/// the popups that they open.
///
/// Example, on the headless back end:
///
///     EntityEditSession session(backend->createDialog({800, 600}), {});
///     session.show(file.data(), {wall});
///     auto& grid = *backend->getPropertyGrid(*session.getGrid());
///     grid.pressButton(session.getEditor().findRow(object::PropertyId("PropertySets")), "");
///     ... the popup is a child of the dialog ...
class EntityEditSession
{
public:
    /// The control id of the grid in its dialog.
    static constexpr int gridId = 101;

    /// What the editor asks of the program. A function that is empty does nothing.
    struct Requests
    {
        /// Opens a path or an address outside of the program.
        std::function<void(std::string const& reference)> openReference;
        /// Selects the object with that GlobalId.
        std::function<void(std::string const& globalId)> goToObject;
        /// Another reference is selected, or none any more.
        std::function<void()> onReferenceChanged;
    };

    /// Makes a grid that fills \p dialog, in which popups keep their settings too.
    EntityEditSession(std::shared_ptr<ui::Dialog> dialog, Requests requests);
    ~EntityEditSession();
    EntityEditSession(EntityEditSession const&) = delete;
    EntityEditSession& operator=(EntityEditSession const&) = delete;

    /// Shows \p entities of \p data together, in place of those before; nothing when there are none. They
    /// stay in memory for as long as they are shown.
    void show(std::shared_ptr<fc::Data> data, std::vector<std::shared_ptr<fc::FcBase>> entities);
    /// Reads all rows again, after the model was changed elsewhere. Entities that were deleted go.
    void refresh();

    [[nodiscard]] std::vector<std::shared_ptr<fc::FcBase>> const& getEntities() const { return m_entities; }
    [[nodiscard]] ui::edit::PropertyGridObjectEditor& getEditor() const { return *m_editor; }
    [[nodiscard]] std::shared_ptr<ui::PropertyGridControl> const& getGrid() const { return m_grid; }

private:
    [[nodiscard]] ui::edit::EditorProgram makeProgram(Requests requests);

    std::shared_ptr<fc::ui::PropertySettingsInterface> m_settingsBefore;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<ui::PropertyGridControl> m_grid;
    std::shared_ptr<fc::Data> m_data;
    std::vector<std::shared_ptr<fc::FcBase>> m_entities;
    std::shared_ptr<ui::edit::PropertyGridObjectEditor> m_editor;
};

} // namespace qev::application
