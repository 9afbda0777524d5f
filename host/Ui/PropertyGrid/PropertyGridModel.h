#pragma once

#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridObserver.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace qev::ui {

/// The rows of one property grid, shared by the control and the back end that draws it.
///
/// Owns its rows. Observers are not owned and take themselves off before they end.
class HOSTUI_EXPORT PropertyGridModel
{
public:
    using EditedFunction = std::function<void(std::shared_ptr<PropertyGridRow> const&)>;
    using SelectedFunction = std::function<void(std::shared_ptr<PropertyGridRow> const&)>;

    PropertyGridModel() = default;
    ~PropertyGridModel();
    PropertyGridModel(PropertyGridModel const&) = delete;
    PropertyGridModel& operator=(PropertyGridModel const&) = delete;

    /// The top-level rows.
    [[nodiscard]] std::vector<std::shared_ptr<PropertyGridRow>> const& getRows() const { return m_rows; }

    /// Adds \p row below the top-level rows there are.
    void appendRow(std::shared_ptr<PropertyGridRow> row);
    /// Removes all rows. Whoever still holds one holds a row that stands nowhere.
    void clear();

    void addObserver(PropertyGridObserver& observer);
    void removeObserver(PropertyGridObserver& observer);

    /// The function that is called after a user has changed a row.
    void setEditedFunction(EditedFunction function) { m_edited = std::move(function); }

    /// The function that is called when another row has become current; with null when none is.
    void setSelectedFunction(SelectedFunction function) { m_selected = std::move(function); }

    void notifyRowChanged(PropertyGridRow& row);
    void notifyRowAboutToBeInserted(PropertyGridRow* parent, std::size_t index);
    void notifyRowInserted(PropertyGridRow* parent, std::size_t index);
    /// The user has changed \p row. The row, and this model, may be gone afterwards.
    void notifyRowEdited(PropertyGridRow& row);
    /// The user has made \p row current; null for none.
    void notifyRowSelected(PropertyGridRow* row);

private:
    std::vector<std::shared_ptr<PropertyGridRow>> m_rows;
    std::vector<PropertyGridObserver*> m_observers;
    EditedFunction m_edited;
    SelectedFunction m_selected;
};

} // namespace qev::ui
