#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include "Core/Assert/Assert.h"

#include <string>
#include <utility>

namespace qev::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::PropertyGridControl::" + std::string(operation),
                   "Ui/Window/Controls/PropertyGridControl/PropertyGridControl");
}

} // namespace

PropertyGridControl::~PropertyGridControl() { letGoOfModel(); }

void PropertyGridControl::addProperty(std::unique_ptr<PropertyGridProperty> property)
{
    auto* const gridInterface = requireGridInterface("addProperty");
    if (!gridInterface)
        return;
    auto row = property ? std::dynamic_pointer_cast<PropertyGridRow>(property->takeCreated()) : nullptr;
    if (row)
        gridInterface->getModel()->appendRow(std::move(row));
    else
        reportFrom("addProperty", "Property isn't new.");
}

void PropertyGridControl::removeAllProperties()
{
    if (auto* const gridInterface = requireGridInterface("removeAllProperties"))
        gridInterface->getModel()->clear();
}

void PropertyGridControl::adjustLayout()
{
    if (auto* const gridInterface = requireGridInterface("adjustLayout"))
        gridInterface->adjustLayout();
}

void PropertyGridControl::showRow(PropertyGridRow& row)
{
    if (auto* const gridInterface = requireGridInterface("showRow"))
        gridInterface->showRow(row);
}

std::shared_ptr<PropertyGridRow> PropertyGridControl::getCurrentRow() const
{
    auto const* const gridInterface = requireGridInterface("getCurrentRow");
    return gridInterface ? gridInterface->getCurrentRow() : nullptr;
}

std::shared_ptr<PropertyGridModel> PropertyGridControl::getModel() const
{
    auto const* const gridInterface = requireGridInterface("getModel");
    return gridInterface ? gridInterface->getModel() : nullptr;
}

void PropertyGridControl::setInterface(WindowInterface& windowInterface)
{
    DialogControl::setInterface(windowInterface);
    m_gridInterface = dynamic_cast<PropertyGridControlInterface*>(&windowInterface);
    if (!m_gridInterface)
        return;
    std::weak_ptr<Window> const self = shared_from_this();
    m_gridInterface->getModel()->setEditedFunction([self](std::shared_ptr<PropertyGridRow> const& row) {
        auto const control = std::dynamic_pointer_cast<PropertyGridControl>(self.lock());
        if (!control)
            return;
        PropertyGridProperty property(row);
        fireEvent(control->onPropertyChanged, property);
    });
    m_gridInterface->getModel()->setSelectedFunction([self](std::shared_ptr<PropertyGridRow> const& row) {
        if (auto const control = std::dynamic_pointer_cast<PropertyGridControl>(self.lock()))
            fireEvent(control->onCurrentRowChanged, row);
    });
}

void PropertyGridControl::resetInterface()
{
    letGoOfModel();
    m_gridInterface = nullptr;
    DialogControl::resetInterface();
}

bool PropertyGridControl::isCompatibleWith(WindowClass windowClass) const
{
    return windowClass == WindowClass::PropertyGridControl;
}

void PropertyGridControl::letGoOfModel()
{
    if (!m_gridInterface)
        return;
    m_gridInterface->getModel()->setEditedFunction(nullptr);
    m_gridInterface->getModel()->setSelectedFunction(nullptr);
}

PropertyGridControlInterface* PropertyGridControl::requireGridInterface(std::string_view operation) const
{
    if (!m_gridInterface)
        reportFrom(operation, "Property grid control interface not set.");
    return m_gridInterface;
}

} // namespace qev::ui
