#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {

/// A popup to tick any number of the values that a property may take. The choice is handed on when the popup
/// closes; the property itself is not changed here.
///
/// Shares the ownership of the property.
class QEVFOUNDATIONCLASSESUI_EXPORT EditPropertyEnumerationPopupController
{
public:
    using Values = std::vector<resource::measure::FcValue>;
    using Callback = std::function<void(Values)>;

    /// Takes exactly one property; anything else is reported, and gives no rows and no values.
    explicit EditPropertyEnumerationPopupController(
        std::vector<std::shared_ptr<resource::property::FcPropertyEnumeratedValue>> objects);
    ~EditPropertyEnumerationPopupController();
    EditPropertyEnumerationPopupController(EditPropertyEnumerationPopupController const&) = delete;
    EditPropertyEnumerationPopupController& operator=(EditPropertyEnumerationPopupController const&) = delete;

    /// Takes \p control, and fills its list.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets the values when it closes, whether or not they were changed, and may
    /// destroy this object. Without a control this is reported, and \p callback dropped.
    void show(Callback callback);

private:
    [[nodiscard]] static std::string handleGetColumnHeaderString(std::size_t column);
    [[nodiscard]] std::string handleGetItemString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::optional<qev::ui::CheckState>
    handleGetCheckState(qev::ui::ListControl::ItemInfo const& item) const;
    void handleCheckBoxClicked(qev::ui::ListControl::ItemInfo const& item, qev::ui::CheckState newState);
    void handleClosed() const;

    ListPopup m_popup;
    std::vector<std::shared_ptr<resource::property::FcPropertyEnumeratedValue>> m_objects;
    Values m_selected;
    /// The texts of the rows.
    std::vector<std::string> m_values;
    Callback m_callback;
};

} // namespace qev::fc::ui
