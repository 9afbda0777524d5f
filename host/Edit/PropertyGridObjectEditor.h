#pragma once

#include "Edit/EditorProgram.h"
#include "Edit/EditorRow.h"
#include "Edit/GridEditController.h"
#include "Edit/PropertyGridControlObjectEditor.h"
#include "Edit/ShownObject.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Dialog.h"

#include <memory>
#include <optional>
#include <string>

namespace qev::ui::edit {

/// Shows objects in a property grid, writes what the user enters, and follows the controller of the objects.
///
/// Of several objects it shows the properties that all have, and writes an input to all of them. What is
/// folded stays so by the ids of the properties, whatever object is shown.
///
/// Ownership: it keeps the grid, the objects and their controller, and of the dialog only as much as the
/// grid does. Rows of the grid that outlive it do nothing.
class HOSTEDIT_EXPORT PropertyGridObjectEditor final
    : public PropertyGridControlObjectEditor,
      public std::enable_shared_from_this<PropertyGridObjectEditor>
{
public:
    using PropertyId = object::PropertyId;

    /// \p grid is the editor's alone from now on. Popups stand over \p popupParent.
    static std::shared_ptr<PropertyGridObjectEditor> create(std::shared_ptr<PropertyGridControl> grid,
                                                            std::shared_ptr<Dialog> const& popupParent,
                                                            EditorProgram program);
    ~PropertyGridObjectEditor() override;

    /// Shows \p objects, in place of those before; \p controller knows what to do around their edits.
    void setObjects(ShownObjects objects, std::shared_ptr<ObjectPropertyEditControllerBase> controller);
    [[nodiscard]] ShownObjects const& getObjects() const { return m_objects; }

    /// The property of the current row; nothing when no row is current.
    [[nodiscard]] std::optional<PropertyId> const& getSelectedProperty() const { return m_selected; }
    /// The path or address that the selected property holds; nothing when it holds none.
    [[nodiscard]] std::optional<std::string> const& getSelectedReference() const { return m_reference; }
    [[nodiscard]] bool isReferenceActionEnabled() const { return m_isReferenceActionEnabled; }
    /// Opens the selected reference, if there is one and the action on it is enabled.
    void openSelectedReference();

    /// The row of a property; null when it has none.
    [[nodiscard]] std::shared_ptr<PropertyGridRow> findRow(PropertyId const& id) const;

    ObjectPropertyEditControllerBase* getControllerNonConst() override { return m_controller.get(); }
    void onObjectsEdited() override;
    void openExternalReference(std::string const& reference) override;
    void goToObject(Guid const& globalId) override;
    void setReferenceActionEnabled(bool enabled) override;
    void clearSelectedReference() override;
    void setSelectedReference(std::string const& reference) override;
    std::shared_ptr<Dialog> getPopupParentWindow() override { return m_popupParent.lock(); }
    void updateView() override;

private:
    PropertyGridObjectEditor(std::shared_ptr<PropertyGridControl> grid,
                             std::shared_ptr<Dialog> const& popupParent, EditorProgram program);

    void listen();
    void reloadProperty(PropertyId const& id);
    void showRows(std::vector<EditorRow> rows);
    void makeRows(std::vector<EditorRow>& rows);
    void dress(PropertyGridRow& row);
    void select(std::optional<PropertyId> id);
    void write(PropertyId const& id, PropertyGridInput const& input);
    void reset(PropertyId const& id);
    void pressButton(PropertyId const& id, std::size_t button);
    [[nodiscard]] std::shared_ptr<void> beginAction(PropertyId const& id) const;
    void regenerate() const;
    [[nodiscard]] EditorProperty getProperty(PropertyId const& id) const;

    std::shared_ptr<PropertyGridControl> m_grid;
    std::weak_ptr<Dialog> m_popupParent;
    EditorProgram m_program;
    ShownObjects m_objects;
    std::shared_ptr<GridEditController> m_controller;
    std::optional<PropertyId> m_selected;
    std::optional<std::string> m_reference;
    bool m_isReferenceActionEnabled = false;
    bool m_isMakingRows = false;
    int m_editedHandler = 0;
    int m_currentRowHandler = 0;
};

} // namespace qev::ui::edit
