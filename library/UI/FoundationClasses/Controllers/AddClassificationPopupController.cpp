#include "UI/FoundationClasses/Controllers/AddClassificationPopupController.h"

#include "Core/Plugin/AbstractPluginAdministrator.h"
#include "FoundationClasses/Classification/ClassificationInterface.h"

#include <algorithm>

namespace qev::fc::ui {

using classification::ClassificationInterface;
using qev::ui::ListControl;

namespace {

constexpr char name[] = "AddClassificationPopupController";

std::vector<std::shared_ptr<ClassificationInterface>> findSystems()
{
    std::vector<std::shared_ptr<ClassificationInterface>> systems;
    for (auto const& plugin : plugin::AbstractPluginAdministrator::current().getPlugins()) {
        if (auto system = std::dynamic_pointer_cast<ClassificationInterface>(plugin))
            systems.push_back(std::move(system));
    }
    return systems;
}

} // namespace

AddClassificationPopupController::AddClassificationPopupController(
    std::vector<std::shared_ptr<core::kernel::FcObjectDefinition const>> objects)
    : m_objects(std::move(objects))
    , m_interfaces(findSystems())
{
}

AddClassificationPopupController::~AddClassificationPopupController() = default;

std::shared_ptr<ClassificationInterface>
AddClassificationPopupController::getClassificationInterface(std::string_view key)
{
    auto const systems = findSystems();
    auto const found = std::find_if(systems.begin(), systems.end(),
                                    [key](auto const& system) { return system->getKey() == key; });
    return found == systems.end() ? nullptr : *found;
}

void AddClassificationPopupController::attachToControl(std::unique_ptr<ListPopup::Control> control)
{
    if (!m_popup.attach(std::move(control)))
        return;
    auto& list = m_popup.list();
    m_popup.handle(list.onGetItemText,
                   [this](ListControl::ItemInfo const& item) { return handleGetItemString(item); });
    m_popup.handle(list.onItemActivated,
                   [this](ListControl::ItemInfo const& item) { handleItemActivated(item); });
    list.setItemAndColumnCounts(m_interfaces.size(), 1);
}

void AddClassificationPopupController::show(Callback callback)
{
    if (m_popup.show(name))
        m_callback = std::move(callback);
}

std::string AddClassificationPopupController::handleGetItemString(ListControl::ItemInfo const& item) const
{
    if (rowOf(item) >= m_interfaces.size())
        return {};
    auto const& system = *m_interfaces[rowOf(item)];
    switch (columnOf(item)) {
    case 0:
        return system.getKey();
    case 1:
        return system.getDescription();
    default:
        return {};
    }
}

void AddClassificationPopupController::handleItemActivated(ListControl::ItemInfo const& item) const
{
    if (rowOf(item) >= m_interfaces.size() || !m_callback)
        return;
    auto const system = m_interfaces[rowOf(item)];
    // The callback may destroy this object, and with it the callback.
    auto const callback = m_callback;
    callback(system);
}

} // namespace qev::fc::ui
