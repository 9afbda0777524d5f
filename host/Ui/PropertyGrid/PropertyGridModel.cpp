#include "Ui/PropertyGrid/PropertyGridModel.h"

#include <utility>

namespace qev::ui {

PropertyGridModel::~PropertyGridModel()
{
    for (auto const& row : m_rows)
        row->setPlace(nullptr, nullptr);
}

void PropertyGridModel::appendRow(std::shared_ptr<PropertyGridRow> row)
{
    notifyRowAboutToBeInserted(nullptr, m_rows.size());
    row->setPlace(this, nullptr);
    m_rows.push_back(std::move(row));
    notifyRowInserted(nullptr, m_rows.size() - 1);
}

void PropertyGridModel::clear()
{
    for (auto* const observer : m_observers)
        observer->onAboutToReset();
    auto const removed = std::exchange(m_rows, {});
    for (auto const& row : removed)
        row->setPlace(nullptr, nullptr);
    for (auto* const observer : m_observers)
        observer->onReset();
}

void PropertyGridModel::addObserver(PropertyGridObserver& observer) { m_observers.push_back(&observer); }

void PropertyGridModel::removeObserver(PropertyGridObserver& observer) { std::erase(m_observers, &observer); }

void PropertyGridModel::notifyRowChanged(PropertyGridRow& row)
{
    for (auto* const observer : m_observers)
        observer->onRowChanged(row);
}

void PropertyGridModel::notifyRowAboutToBeInserted(PropertyGridRow* parent, std::size_t index)
{
    for (auto* const observer : m_observers)
        observer->onRowAboutToBeInserted(parent, index);
}

void PropertyGridModel::notifyRowInserted(PropertyGridRow* parent, std::size_t index)
{
    for (auto* const observer : m_observers)
        observer->onRowInserted(parent, index);
}

void PropertyGridModel::notifyRowEdited(PropertyGridRow& row)
{
    // A copy, since the handler may let go of the control and with it of the function.
    if (auto const edited = m_edited)
        edited(row.getShared());
}

void PropertyGridModel::notifyRowSelected(PropertyGridRow* row)
{
    if (auto const selected = m_selected)
        selected(row ? row->getShared() : nullptr);
}

} // namespace qev::ui
