#include "EntityEditSession.h"

#include "Core/Id/Guid.h"
#include "Edit/PropertyGridControlObjectEditorContext.h"
#include "UI/FoundationClasses/FcEditController.h"
#include "UI/FoundationClasses/FcObjectEditor.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include <algorithm>
#include <utility>

namespace qev::application {

namespace {

using fc::ui::edit::FcEditController;
using fc::ui::edit::FcObjectEditor;
using fc::ui::propertyinterface::FcPropertyWrapper;

/// An enumerated property may have several values. A drop list takes one; the popup that these settings give
/// to enumerations takes all.
class EnumerationPopups final : public fc::ui::PropertySettings
{
public:
    [[nodiscard]] bool isUserEditableEnumeration(std::string_view /*setName*/,
                                                 std::string_view /*propertyName*/) const override
    {
        return true;
    }
};

/// The controller of this program: what the library does with clicks is all it wants.
class EntityEditController final : public FcEditController
{
};

std::shared_ptr<ui::edit::ShownObject> makeShownObject(std::shared_ptr<fc::Data> const& data,
                                                       std::shared_ptr<fc::FcBase> const& entity)
{
    auto const wrapper = FcPropertyWrapper::createStrongOwningFcPropertyWrapper(data, entity);
    wrapper->setReadOnly(false);
    auto editor =
        std::make_shared<FcObjectEditor>(*wrapper, ui::edit::PropertyGridControlObjectEditorContext::Panel);
    return std::make_shared<ui::edit::ShownObject>(wrapper, std::move(editor));
}

ui::WindowPlacement getClientArea(ui::Dialog const& dialog)
{
    auto const size = dialog.getClientAreaSize();
    return {0, 0, static_cast<int>(size.first), static_cast<int>(size.second)};
}

} // namespace

EntityEditSession::EntityEditSession(std::shared_ptr<ui::Dialog> dialog, Requests requests)
    : m_settingsBefore(fc::ui::PropertySettings::setInstance(std::make_shared<EnumerationPopups>()))
    , m_dialog(std::move(dialog))
    , m_grid(ui::Window::create<ui::PropertyGridControl>(m_dialog, 0, 0, getClientArea(*m_dialog), gridId))
    , m_editor(ui::edit::PropertyGridObjectEditor::create(m_grid, m_dialog, makeProgram(std::move(requests))))
{
}

EntityEditSession::~EntityEditSession() { fc::ui::PropertySettings::setInstance(m_settingsBefore); }

void EntityEditSession::show(std::shared_ptr<fc::Data> data,
                             std::vector<std::shared_ptr<fc::FcBase>> entities)
{
    m_data = std::move(data);
    m_entities = std::move(entities);
    ui::edit::ShownObjects objects;
    for (auto const& entity : m_entities)
        objects.push_back(makeShownObject(m_data, entity));
    m_editor->setObjects(std::move(objects), std::make_shared<EntityEditController>());
}

void EntityEditSession::refresh()
{
    auto entities = m_entities;
    std::erase_if(entities, [this](std::shared_ptr<fc::FcBase> const& entity) {
        return m_data->isDeleted(entity->getIndex());
    });
    if (entities.size() != m_entities.size())
        show(m_data, std::move(entities));
    else
        m_editor->updateView();
}

ui::edit::EditorProgram EntityEditSession::makeProgram(Requests requests)
{
    ui::edit::EditorProgram program;
    program.beginAction = [this](std::string const& name) -> std::shared_ptr<void> {
        return m_data ? std::make_shared<fc::ChangeLog::Step>(m_data->changes(), name) : nullptr;
    };
    program.openReference = std::move(requests.openReference);
    if (requests.goToObject)
        program.goToObject = [goToObject = std::move(requests.goToObject)](Guid const& globalId) {
            goToObject(globalId.toString());
        };
    program.onReferenceChanged = std::move(requests.onReferenceChanged);
    return program;
}

} // namespace qev::application
