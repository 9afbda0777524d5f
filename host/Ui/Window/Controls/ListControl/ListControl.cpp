#include "Ui/Window/Controls/ListControl/ListControl.h"

#include "Core/Assert/Assert.h"

#include <utility>

namespace qev::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::ListControl::" + std::string(operation),
                   "Ui/Window/Controls/ListControl/ListControl");
}

} // namespace

void ListControl::setItemAndColumnCounts(std::size_t rows, std::size_t columns)
{
    if (auto* const listInterface = requireListInterface("setItemAndColumnCounts"))
        listInterface->setItemAndColumnCounts(rows, columns);
}

std::size_t ListControl::getItemCount() const
{
    auto const* const listInterface = requireListInterface("getItemCount");
    return listInterface ? listInterface->getItemCount() : 0;
}

std::size_t ListControl::getColumnCount() const
{
    auto const* const listInterface = requireListInterface("getColumnCount");
    return listInterface ? listInterface->getColumnCount() : 0;
}

void ListControl::redrawItem(std::size_t row)
{
    if (auto* const listInterface = requireListInterface("redrawItem"))
        listInterface->redrawItem(row);
}

std::vector<std::size_t> ListControl::getSelectedItems() const
{
    auto const* const listInterface = requireListInterface("getSelectedItems");
    return listInterface ? listInterface->getSelectedItems() : std::vector<std::size_t>();
}

void ListControl::enableColumnCheckBoxes(std::size_t column, int mode,
                                         std::shared_ptr<Image const> checkedImage,
                                         std::shared_ptr<Image const> uncheckedImage)
{
    if (auto* const listInterface = requireListInterface("enableColumnCheckBoxes"))
        listInterface->enableColumnCheckBoxes(column, true, mode, std::move(checkedImage),
                                              std::move(uncheckedImage));
}

std::optional<int> ListControl::getCheckBoxMode(std::size_t column) const
{
    auto const* const listInterface = requireListInterface("getCheckBoxMode");
    return listInterface ? listInterface->getCheckBoxMode(column) : std::nullopt;
}

void ListControl::activateComboBoxEditingForColumn(std::size_t column)
{
    auto* const listInterface = requireListInterface("activateComboBoxEditingForColumn");
    if (!listInterface)
        return;
    if (!listInterface->isUsingReportStyle()) {
        reportFrom("activateComboBoxEditingForColumn", "Only applies to report style controls.");
        return;
    }
    listInterface->activateComboBoxEditingForColumn(column);
}

bool ListControl::isComboBoxColumn(std::size_t column) const
{
    auto const* const listInterface = requireListInterface("isComboBoxColumn");
    return listInterface && listInterface->isComboBoxColumn(column);
}

bool ListControl::isUsingReportStyle() const
{
    auto const* const listInterface = requireListInterface("isUsingReportStyle");
    return listInterface && listInterface->isUsingReportStyle();
}

void ListControl::enableLabelEdit()
{
    auto* const listInterface = requireListInterface("enableLabelEdit");
    if (!listInterface)
        return;
    if (!listInterface->isUsingReportStyle()) {
        reportFrom("enableLabelEdit", "Only applies to report style controls.");
        return;
    }
    for (auto const flag : {EditLabels, EditByKey, EditNextByTab})
        addStyleFlags(flag);
}

void ListControl::startLabelEdit(std::size_t row, std::size_t column)
{
    if (auto* const listInterface = requireListInterface("startLabelEdit"))
        listInterface->startLabelEdit(row, column);
}

void ListControl::addStyleFlags(unsigned int flags)
{
    if (auto* const listInterface = requireListInterface("addStyleFlags"))
        listInterface->addStyleFlags(flags);
}

ListControlSettings ListControl::getSettings() const
{
    auto const* const listInterface = requireListInterface("getSettings");
    return listInterface ? listInterface->getSettings() : ListControlSettings();
}

void ListControl::loadSettings(ListControlSettings const& settings)
{
    if (auto* const listInterface = requireListInterface("loadSettings"))
        listInterface->loadSettings(settings);
}

void ListControl::setInterface(WindowInterface& windowInterface)
{
    DialogControl::setInterface(windowInterface);
    m_listInterface = dynamic_cast<ListControlInterface*>(&windowInterface);
    m_header.setInterface(m_listInterface ? &m_listInterface->getHeaderInterface() : nullptr);
}

void ListControl::resetInterface()
{
    m_header.setInterface(nullptr);
    m_listInterface = nullptr;
    DialogControl::resetInterface();
}

bool ListControl::isCompatibleWith(WindowClass windowClass) const
{
    return windowClass == WindowClass::ListControl;
}

ListControlInterface* ListControl::requireListInterface(std::string_view operation) const
{
    if (!m_listInterface)
        reportFrom(operation, "List control interface not set.");
    return m_listInterface;
}

} // namespace qev::ui
