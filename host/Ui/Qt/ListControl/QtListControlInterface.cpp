#include "Ui/Qt/ListControl/QtListControlInterface.h"

namespace qev::ui {

QtListControlInterface::QtListControlInterface(QtListControl& list, int controlId)
    : QtInterface(list, WindowClass::ListControl, controlId)
{
}

void QtListControlInterface::show()
{
    QtInterface::show();
    if (auto* const list = getList(); list && list->isPopup())
        list->openPopup();
}

void QtListControlInterface::enable(bool enabled)
{
    if (auto* const list = getList())
        list->setReadOnly(!enabled);
}

bool QtListControlInterface::isEnabled() const
{
    auto const* const list = getList();
    return list && list->isEnabled() && !list->isReadOnly();
}

void QtListControlInterface::setItemAndColumnCounts(std::size_t rows, std::size_t columns)
{
    if (auto* const list = getList())
        list->setItemAndColumnCounts(rows, columns);
}

std::size_t QtListControlInterface::getItemCount() const
{
    auto const* const list = getList();
    return list ? list->getCells().getOrder().getRowCount() : 0;
}

std::size_t QtListControlInterface::getColumnCount() const
{
    auto const* const list = getList();
    return list ? list->getCells().getColumns().getCount() : 0;
}

std::optional<int> QtListControlInterface::getCheckBoxMode(std::size_t column) const
{
    auto const* const list = getList();
    return list ? list->getCells().getColumns().getCheckBoxMode(column) : std::nullopt;
}

void QtListControlInterface::redrawItem(std::size_t row)
{
    if (auto* const list = getList())
        list->getView().updateRow(row);
}

std::vector<std::size_t> QtListControlInterface::getSelectedItems() const
{
    auto const* const list = getList();
    return list ? list->getView().getSelectedRows() : std::vector<std::size_t>();
}

void QtListControlInterface::enableColumnCheckBoxes(std::size_t column, bool enable, int mode,
                                                    std::shared_ptr<Image const> /*checkedImage*/,
                                                    std::shared_ptr<Image const> /*uncheckedImage*/)
{
    auto* const list = getList();
    if (!list)
        return;
    list->getCells().getColumns().setCheckBoxes(column, enable ? std::optional(mode) : std::nullopt);
    list->getView().viewport()->update();
}

void QtListControlInterface::activateComboBoxEditingForColumn(std::size_t column)
{
    if (auto* const list = getList())
        list->getCells().getColumns().activateComboBox(column);
}

bool QtListControlInterface::isComboBoxColumn(std::size_t column) const
{
    auto const* const list = getList();
    return list && list->getCells().getColumns().isComboBox(column);
}

bool QtListControlInterface::isUsingReportStyle() const
{
    auto const* const list = getList();
    return list && list->isUsingReportStyle();
}

void QtListControlInterface::startLabelEdit(std::size_t row, std::size_t column)
{
    if (auto* const list = getList())
        list->getView().startLabelEdit(row, column);
}

void QtListControlInterface::addStyleFlags(unsigned int flags)
{
    if (auto* const list = getList())
        list->addStyleFlags(flags);
}

ListControlSettings QtListControlInterface::getSettings() const
{
    auto const* const list = getList();
    return list ? list->getSettings() : ListControlSettings();
}

void QtListControlInterface::loadSettings(ListControlSettings const& settings)
{
    if (auto* const list = getList())
        list->loadSettings(settings);
}

void QtListControlInterface::setDefaultHiddenColumns(std::set<std::size_t> const& columns)
{
    auto* const list = getList();
    if (!list)
        return;
    list->getCells().getColumns().setDefaultHidden(columns);
    list->getView().arrangeColumns();
}

} // namespace qev::ui
