#pragma once

#include "Core/Id/Guid.h"
#include "Edit/EditedObject.h"
#include "Edit/ObjectPropertyEditController.h"
#include "Edit/PropertyGridControlObjectEditor.h"
#include "host/Ui/UiTest.h"
#include "ObjectEditorTest.h"
#include "UI/FoundationClasses/FcEditController.h"
#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// What is asked of an editor, in order, as text.
struct EditorLog
{
    std::vector<std::string> entries;
    /// Runs with each entry.
    std::function<void(std::string const&)> onEntry;

    void add(std::string const& entry)
    {
        entries.push_back(entry);
        if (onEntry)
            onEntry(entry);
    }
};

/// The controller inside a grid that shows nothing.
class ToyGridController : public ui::edit::ObjectPropertyEditController
{
public:
    explicit ToyGridController(std::shared_ptr<EditorLog> log)
        : m_log(std::move(log))
    {
    }
    void reloadProperty(PropertyId id) override { m_log->add("reload " + id.text()); }

private:
    std::shared_ptr<EditorLog> m_log;
};

/// An editor without a grid, which keeps what it is asked.
class ToyObjectEditor : public ui::edit::PropertyGridControlObjectEditor
{
public:
    ToyObjectEditor(std::shared_ptr<EditorLog> log, std::shared_ptr<ui::Dialog> parent)
        : dialog(std::move(parent))
        , m_log(std::move(log))
    {
    }

    void onObjectsEdited() override { m_log->add("edited"); }
    void openExternalReference(std::string const& reference) override { m_log->add("open " + reference); }
    void goToObject(Guid const& globalId) override { m_log->add("go to " + globalId.toString()); }
    void setReferenceActionEnabled(bool enabled) override
    {
        m_log->add(enabled ? "enable reference" : "disable reference");
    }
    void clearSelectedReference() override { m_log->add("clear reference"); }
    void setSelectedReference(std::string const& reference) override { m_log->add("reference " + reference); }
    std::shared_ptr<ui::Dialog> getPopupParentWindow() override { return dialog; }
    void updateView() override { m_log->add("update"); }
    ui::edit::ObjectPropertyEditControllerBase* getControllerNonConst() override { return controller.get(); }

    std::shared_ptr<ui::Dialog> dialog;
    std::shared_ptr<ui::edit::ObjectPropertyEditControllerBase> controller;
    /// What a program keeps with its editor.
    std::shared_ptr<void> belongings;

private:
    std::shared_ptr<EditorLog> m_log;
};

/// A controller as a program derives it.
class ToyEditController : public fc::ui::edit::FcEditController
{
public:
    using FcEditController::getFcData;
};

/// Walls that are edited together over a headless back end.
class EditControllerTest : public UiTest
{
protected:
    using FcPropertyWrapper = fc::ui::propertyinterface::FcPropertyWrapper;
    using PropertyId = object::PropertyId;
    using Log = std::vector<std::string>;

    EditControllerTest()
        : grid(createGrid())
    {
        backend->setCursorPosition(ui::Position{100, 200});
        auto const gridController = std::make_shared<ToyGridController>(log);
        gridController->setOwner(owner);
        owner->controller = gridController;
        controller->setOwner(owner);
    }

    static std::shared_ptr<ui::edit::EditedObject> edited(std::shared_ptr<fc::Data> const& data,
                                                          std::shared_ptr<fc::FcBase> const& entity)
    {
        auto const wrapper = FcPropertyWrapper::createStrongOwningFcPropertyWrapper(data, entity);
        wrapper->setReadOnly(false);
        return std::make_shared<ui::edit::EditedObject>(wrapper);
    }
    /// Edits these entities of the model, which can all be changed.
    void edit(std::vector<std::shared_ptr<fc::FcBase>> const& entities)
    {
        ui::edit::ObjectPropertyEditControllerBase::EditedObjects objects;
        for (auto const& entity : entities)
            objects.push_back(edited(model.data(), entity));
        controller->setObjects(objects, objects);
    }
    /// Edits one wall of this model and one of another.
    void editWallsOfTwoModels(std::shared_ptr<fc::FcBase> const& mine, Model& otherModel,
                              std::shared_ptr<fc::FcBase> const& other)
    {
        auto const first = edited(model.data(), mine);
        auto const second = edited(otherModel.data(), other);
        controller->setObjects({first, second}, {first, second});
    }
    void click(std::string const& id, std::string const& key = "")
    {
        controller->onButtonClicked(PropertyId(id), key);
    }
    /// What a change of the model is followed by.
    static Log changeAt(std::string const& id) { return {"reload " + id, "update", "edited"}; }

    /// The list of the popup that is open; null when none is.
    [[nodiscard]] std::shared_ptr<ui::HeadlessListControl> openList() const
    {
        auto const window =
            std::dynamic_pointer_cast<ui::ListControl>(ui::PopupControlAborter::current().getOpenPopup());
        return window ? backend->getListControl(*window) : nullptr;
    }
    /// The row of the open list with that text in its first column.
    [[nodiscard]] static std::size_t rowOf(ui::HeadlessListControl const& list, std::string const& text)
    {
        for (std::size_t row = 0; row < list.getRowCount(); ++row) {
            if (list.getText(row, 0) == text)
                return row;
        }
        ADD_FAILURE() << "There is no row " << text;
        return 0;
    }
    /// Clicks the row of the open list with that text.
    void choose(std::string const& text)
    {
        auto const list = openList();
        ASSERT_NE(list, nullptr);
        ASSERT_TRUE(list->activate(rowOf(*list, text), 0));
    }
    /// Closes the open list as a click elsewhere does.
    void turnElsewhere()
    {
        if (auto const list = openList())
            list->setFocus();
        grid->setFocus();
    }
    [[nodiscard]] std::vector<std::string> propertyNames(fc::core::kernel::FcObjectDefinition& object,
                                                         std::string const& setName) const
    {
        std::vector<std::string> names;
        auto const set = object.getPropertySetDefinitionNonConst<fc::core::kernel::FcPropertySet>(setName);
        if (!set)
            return {"no set"};
        for (auto const& property : set->HasProperties.getProperties())
            names.push_back(property->Name.get());
        return names;
    }

    static void expectControllerReport(std::string const& text, std::string const& operation)
    {
        expectReport(text, "qev::fc::ui::edit::FcEditController::" + operation,
                     "UI/FoundationClasses/FcEditController");
    }

    Model model;
    std::shared_ptr<ui::PropertyGridControl> grid;
    std::shared_ptr<EditorLog> log = std::make_shared<EditorLog>();
    std::shared_ptr<ToyObjectEditor> owner = std::make_shared<ToyObjectEditor>(log, dialog);
    std::shared_ptr<ToyEditController> controller = std::make_shared<ToyEditController>();
};

} // namespace qev::test
