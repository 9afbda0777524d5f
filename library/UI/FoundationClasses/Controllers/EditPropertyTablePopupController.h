#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qev::fc {
class Data;
}
namespace qev::fc::resource::measure {
class FcUnit;
}

namespace qev::fc::ui {

/// A popup to edit the pairs of defining and defined values of a property. Values are typed in place; a menu
/// deletes and inserts rows, and an edit just below the last row appends one. The result is handed on when
/// the popup closes; the property itself is not changed here.
///
/// Shares the ownership of model and property. Values are in SI units, and shown as the user wants them.
class QEVFOUNDATIONCLASSESUI_EXPORT EditPropertyTablePopupController
{
public:
    using Row = std::pair<resource::measure::FcValue, resource::measure::FcValue>;
    using Rows = std::vector<Row>;
    using Callback = std::function<void(Rows)>;

    /// The commands of the menu, which are also the places of their entries.
    enum Command : int
    {
        DeleteRow = 0,
        InsertRowAbove = 1,
    };

    /// Takes exactly one property; anything else is reported, and gives no rows. Where one of its two lists
    /// is longer, its tail has no row. \p propertyName is the name by which the presentation of the values is
    /// chosen; it may be empty.
    EditPropertyTablePopupController(
        std::shared_ptr<Data> data,
        std::vector<std::shared_ptr<resource::property::FcPropertyTableValue>> objects,
        std::string propertyName);
    ~EditPropertyTablePopupController();
    EditPropertyTablePopupController(EditPropertyTablePopupController const&) = delete;
    EditPropertyTablePopupController& operator=(EditPropertyTablePopupController const&) = delete;

    /// Takes \p control, and fills its list. An empty table opens with an edit of its first row.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets the rows when it closes, whether or not they were changed, and may
    /// destroy this object. Without a control this is reported, and \p callback dropped.
    void show(Callback callback);

    /// The property's own units, which belong to it; null without a property.
    [[nodiscard]] resource::measure::FcUnit const* getDefiningUnit() const { return m_definingUnit; }
    [[nodiscard]] resource::measure::FcUnit const* getDefinedUnit() const { return m_definedUnit; }

private:
    [[nodiscard]] resource::property::FcPropertyTableValue const* getProperty() const;
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
    presentationFor(resource::measure::FcValue const& value) const;
    /// The value of a cell; null for a row past the end.
    [[nodiscard]] resource::measure::FcValue const*
    findValue(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] static std::string handleGetColumnHeaderString(std::size_t column);
    [[nodiscard]] std::string handleGetItemString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::string handleGetItemEditString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] static qev::ui::ListControl::LabelEditBeginResultParams handleLabelEditBegin();
    void handleLabelEditEnd(qev::ui::ListControl::LabelEditEndParams const& params);
    void handleContextMenu(qev::ui::ListControl::ItemInfo const& item, qev::ui::PopupMenu& menu) const;
    void handleContextMenuCommand(qev::ui::ListControl::ItemInfo const& item, int command);
    void handleClosed() const;
    void appendRow();
    void deleteRow(std::size_t row);
    void insertRowAbove(std::size_t row);
    void updateCounts();

    ListPopup m_popup;
    std::shared_ptr<Data> m_data;
    resource::measure::FcUnit const* m_definingUnit = nullptr;
    resource::measure::FcUnit const* m_definedUnit = nullptr;
    std::vector<std::shared_ptr<resource::property::FcPropertyTableValue>> m_objects;
    std::string m_propertyName;
    Rows m_rows;
    Callback m_callback;
};

} // namespace qev::fc::ui
