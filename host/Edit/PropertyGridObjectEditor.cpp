#include "Edit/PropertyGridObjectEditor.h"

#include "Core/Id/Guid.h"
#include "Core/Unit/QuantityPresentation.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridStateProperty.h"

#include <algorithm>
#include <utility>

namespace qev::ui::edit {

namespace {

using Rows = std::vector<std::shared_ptr<PropertyGridRow>>;

/// Whether \p rows can become \p wanted by new states alone.
bool haveSameShape(Rows const& rows, std::vector<EditorRow> const& wanted)
{
    return std::equal(rows.begin(), rows.end(), wanted.begin(), wanted.end(),
                      [](std::shared_ptr<PropertyGridRow> const& row, EditorRow const& other) {
                          auto const& state = row->getState();
                          return state.key == other.state.key && state.kind == other.state.kind &&
                                 haveSameShape(row->getChildren(), other.children);
                      });
}

void renew(Rows const& rows, std::vector<EditorRow>& wanted)
{
    for (std::size_t position = 0; position < rows.size(); ++position) {
        auto& row = wanted[position];
        rows[position]->renew(std::move(row.state), std::move(row.presentation));
        renew(rows[position]->getChildren(), row.children);
    }
}

std::shared_ptr<PropertyGridRow> findRowIn(Rows const& rows, std::string const& key)
{
    for (auto const& row : rows) {
        if (row->getState().key == key)
            return row;
        if (auto const below = findRowIn(row->getChildren(), key))
            return below;
    }
    return nullptr;
}

/// The id of what stands above \p id; nothing at the top.
std::optional<object::PropertyId> getIdAbove(object::PropertyId const& id)
{
    auto const dot = id.text().rfind('.');
    if (dot == std::string::npos)
        return std::nullopt;
    return object::PropertyId(id.text().substr(0, dot));
}

PropertyGridInput getInput(PropertyGridRow const& row)
{
    auto const& state = row.getState();
    PropertyGridInput input;
    if (state.kind == PropertyGridRowState::Kind::CheckBox)
        input.checkState = state.checkState;
    else if (state.valueKind == PropertyGridRowState::ValueKind::Number)
        input.number = state.number;
    else
        input.text = state.text;
    return input;
}

bool doesRegenerate(ObjectPropertyEditControllerBase::OnPropertyChangedAction action)
{
    using Base = ObjectPropertyEditControllerBase;
    return action == Base::RegenerateObject || action == Base::RegenerateObjectAndReloadProperties;
}

} // namespace

std::shared_ptr<PropertyGridObjectEditor>
PropertyGridObjectEditor::create(std::shared_ptr<PropertyGridControl> grid,
                                 std::shared_ptr<Dialog> const& popupParent, EditorProgram program)
{
    std::shared_ptr<PropertyGridObjectEditor> editor(
        new PropertyGridObjectEditor(std::move(grid), popupParent, std::move(program)));
    editor->listen();
    return editor;
}

PropertyGridObjectEditor::PropertyGridObjectEditor(std::shared_ptr<PropertyGridControl> grid,
                                                   std::shared_ptr<Dialog> const& popupParent,
                                                   EditorProgram program)
    : m_grid(std::move(grid))
    , m_popupParent(popupParent)
    , m_program(std::move(program))
{
}

PropertyGridObjectEditor::~PropertyGridObjectEditor()
{
    m_grid->onPropertyChanged.vHandlerRemove(m_editedHandler);
    m_grid->onCurrentRowChanged.vHandlerRemove(m_currentRowHandler);
}

void PropertyGridObjectEditor::setObjects(ShownObjects objects,
                                          std::shared_ptr<ObjectPropertyEditControllerBase> controller)
{
    if (m_selected && m_controller)
        select(std::nullopt);
    m_objects = std::move(objects);
    m_controller = std::make_shared<GridEditController>(std::move(controller),
                                                        [editor = weak_from_this()](PropertyId const& id) {
                                                            if (auto const self = editor.lock())
                                                                self->reloadProperty(id);
                                                        });
    GridEditController::EditedObjects edited(m_objects.begin(), m_objects.end());
    auto writable = edited;
    std::erase_if(writable, [](std::shared_ptr<EditedObject> const& object) {
        return static_cast<ShownObject const&>(*object).isReadOnly();
    });
    m_controller->connect(weak_from_this(), edited, writable);
    updateView();
}

void PropertyGridObjectEditor::openSelectedReference()
{
    if (m_reference && m_isReferenceActionEnabled)
        openExternalReference(*m_reference);
}

std::shared_ptr<PropertyGridRow> PropertyGridObjectEditor::findRow(PropertyId const& id) const
{
    auto const model = m_grid->getModel();
    return model ? findRowIn(model->getRows(), id.text()) : nullptr;
}

void PropertyGridObjectEditor::onObjectsEdited() { regenerate(); }

void PropertyGridObjectEditor::openExternalReference(std::string const& reference)
{
    if (m_program.openReference)
        m_program.openReference(reference);
}

void PropertyGridObjectEditor::goToObject(Guid const& globalId)
{
    // The program may show other objects here and now.
    auto const keepAlive = shared_from_this();
    auto const goTo = m_program.goToObject;
    if (goTo)
        goTo(globalId);
}

void PropertyGridObjectEditor::setReferenceActionEnabled(bool enabled)
{
    m_isReferenceActionEnabled = enabled;
    if (m_program.onReferenceChanged)
        m_program.onReferenceChanged();
}

void PropertyGridObjectEditor::clearSelectedReference()
{
    m_reference.reset();
    setReferenceActionEnabled(false);
}

void PropertyGridObjectEditor::setSelectedReference(std::string const& reference)
{
    m_reference = reference;
    if (m_program.onReferenceChanged)
        m_program.onReferenceChanged();
}

void PropertyGridObjectEditor::updateView()
{
    if (!m_controller || m_isMakingRows)
        return;
    showRows(EditorRow::makeRows(m_objects, *m_controller, EditorLevel::instance()));
    auto const row = m_grid->getCurrentRow();
    auto current = row ? std::optional(PropertyId(row->getState().key)) : std::nullopt;
    if (current && current == m_selected)
        // What the property leads to may be something else by now.
        m_controller->onPropertySelected(*current);
    else
        select(std::move(current));
}

void PropertyGridObjectEditor::listen()
{
    std::weak_ptr<PropertyGridObjectEditor> const self = weak_from_this();
    m_editedHandler = m_grid->onPropertyChanged.iHandlerAdd([self](auto&, PropertyGridProperty& property) {
        auto const* const row = dynamic_cast<PropertyGridRow const*>(property.getActiveInterface());
        if (auto const editor = self.lock(); editor && row)
            editor->write(PropertyId(row->getState().key), getInput(*row));
    });
    m_currentRowHandler =
        m_grid->onCurrentRowChanged.iHandlerAdd([self](auto&, std::shared_ptr<PropertyGridRow> const& row) {
            auto const editor = self.lock();
            if (editor && !editor->m_isMakingRows)
                editor->select(row ? std::optional(PropertyId(row->getState().key)) : std::nullopt);
        });
}

void PropertyGridObjectEditor::reloadProperty(PropertyId const& id)
{
    updateView();
    for (std::optional<PropertyId> shown = id; shown; shown = getIdAbove(*shown)) {
        if (auto const row = findRow(*shown)) {
            m_grid->showRow(*row);
            return;
        }
    }
}

void PropertyGridObjectEditor::showRows(std::vector<EditorRow> rows)
{
    auto const model = m_grid->getModel();
    if (!model)
        return;
    m_isMakingRows = true;
    if (haveSameShape(model->getRows(), rows))
        renew(model->getRows(), rows);
    else
        makeRows(rows);
    m_isMakingRows = false;
}

void PropertyGridObjectEditor::makeRows(std::vector<EditorRow>& rows)
{
    auto const redrawGuard = m_grid->suspendRedraw();
    m_grid->removeAllProperties();
    auto const makeRow = [this](auto const& self, EditorRow& row) -> std::unique_ptr<PropertyGridProperty> {
        auto property =
            std::make_unique<PropertyGridStateProperty>(std::move(row.state), std::move(row.presentation));
        if (auto* const made = property->getRow())
            dress(*made);
        for (auto& child : row.children)
            property->addSubProperty(*self(self, child));
        return property;
    };
    for (auto& row : rows)
        m_grid->addProperty(makeRow(makeRow, row));
    m_grid->adjustLayout();
}

void PropertyGridObjectEditor::dress(PropertyGridRow& row)
{
    std::weak_ptr<PropertyGridObjectEditor> const self = weak_from_this();
    PropertyId const id(row.getState().key);
    row.setInputCheck([self, id](PropertyGridInput const& input) {
        auto const editor = self.lock();
        return editor ? editor->getProperty(id).findObjection(input) : std::nullopt;
    });
    row.setButtonFunction([self, id](std::size_t button) {
        if (auto const editor = self.lock())
            editor->pressButton(id, button);
    });
    row.getCheckBoxClickedHandlers().iHandlerAdd([self, id](auto&, PropertyGridCheckBoxProperty& property) {
        auto const editor = self.lock();
        PropertyGridInput input;
        input.checkState = property.getCheckState();
        if (editor)
            editor->write(id, input);
    });
}

void PropertyGridObjectEditor::select(std::optional<PropertyId> id)
{
    if (id == m_selected || !m_controller)
        return;
    auto const keepAlive = m_controller;
    if (auto const before = std::exchange(m_selected, std::move(id)))
        keepAlive->onPropertyDeselected(*before);
    if (m_selected)
        keepAlive->onPropertySelected(*m_selected);
    else
        clearSelectedReference();
}

void PropertyGridObjectEditor::write(PropertyId const& id, PropertyGridInput const& input)
{
    // What happens around the edit may show other objects.
    auto const controller = m_controller;
    {
        auto const action = beginAction(id);
        auto const value = getProperty(id).write(input);
        controller->onPropertyChanged(id, value);
        if (doesRegenerate(controller->getOnPropertyChangedAction(id))) {
            regenerate();
            controller->onPropertyChangedAfterObjectRegen(id, value);
        }
    }
    updateView();
    controller->onAfterPropertyUpdated(id);
}

void PropertyGridObjectEditor::reset(PropertyId const& id)
{
    auto const controller = m_controller;
    if (!controller->onRequestToResetPropertyLocalValue(id))
        return;
    {
        auto const action = beginAction(id);
        getProperty(id).reset();
        controller->onAfterResetPropertyLocalValue(id);
        if (doesRegenerate(controller->getOnPropertyChangedAction(id))) {
            regenerate();
            controller->onResetPropertyLocalValueAfterObjectRegen(id);
        }
    }
    updateView();
}

void PropertyGridObjectEditor::pressButton(PropertyId const& id, std::size_t button)
{
    auto const row = findRow(id);
    if (!row || button >= row->getState().buttons.size())
        return;
    auto const key = row->getState().buttons[button].key;
    if (key == EditorRow::resetKey) {
        reset(id);
        return;
    }
    auto const controller = m_controller;
    // What a click does, now or from a popup later on, is named by whoever does it.
    controller->onButtonClicked(id, key);
}

std::shared_ptr<void> PropertyGridObjectEditor::beginAction(PropertyId const& id) const
{
    return m_program.beginAction ? m_program.beginAction(getProperty(id).getLabel()) : nullptr;
}

void PropertyGridObjectEditor::regenerate() const
{
    if (m_program.regenerateObjects)
        m_program.regenerateObjects();
}

EditorProperty PropertyGridObjectEditor::getProperty(PropertyId const& id) const
{
    return {m_objects, *m_controller, id};
}

} // namespace qev::ui::edit
