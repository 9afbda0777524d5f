#pragma once

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControlInterface.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridProperty.h"
#include "Ui/Window/DialogControl.h"

#include <memory>
#include <string_view>

namespace qev::ui {

/// A tree of named rows with values, which the user can edit.
///
/// Without a platform side its operations report "Property grid control interface not set." and do nothing.
class HOSTUI_EXPORT PropertyGridControl : public DialogControl
{
public:
    [[nodiscard]] static char const* getClassName() { return "PropertyGridControl"; }

    ~PropertyGridControl() override;

    /// Appends a top-level row.
    void addProperty(std::unique_ptr<PropertyGridProperty> property);
    void removeAllProperties();
    /// Lays the rows out anew, once all of them are there.
    void adjustLayout();

    /// Makes \p row, one of this grid, current and brings it into view.
    void showRow(PropertyGridRow& row);
    /// The row that is current; null when none is.
    [[nodiscard]] std::shared_ptr<PropertyGridRow> getCurrentRow() const;

    /// The rows; null, with a report, without a platform side.
    [[nodiscard]] std::shared_ptr<PropertyGridModel> getModel() const;

    /// Fired on a row after the user has changed it.
    EventHandlerContainer<Window, void, PropertyGridProperty&> onPropertyChanged;
    /// Fired when another row has become current; with null when none is.
    EventHandlerContainer<Window, void, std::shared_ptr<PropertyGridRow> const&> onCurrentRowChanged;

protected:
    void setInterface(WindowInterface& windowInterface) override;
    void resetInterface() override;
    [[nodiscard]] bool isCompatibleWith(WindowClass windowClass) const override;

private:
    /// Stops hearing of the rows.
    void letGoOfModel();
    [[nodiscard]] PropertyGridControlInterface* requireGridInterface(std::string_view operation) const;

    PropertyGridControlInterface* m_gridInterface = nullptr;
};

} // namespace qev::ui
