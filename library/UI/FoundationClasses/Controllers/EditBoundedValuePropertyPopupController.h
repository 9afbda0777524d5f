#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc::ui {

/// A popup to edit the lower bound, the upper bound and the set point of a property. A check box says whether
/// there is a value; the value beside it is typed. The result is handed on when the popup closes; the
/// property itself is not changed here.
///
/// Shares the ownership of the property. Values are in SI units, and shown as the user wants them.
class QEVFOUNDATIONCLASSESUI_EXPORT EditBoundedValuePropertyPopupController
{
public:
    /// Lower bound, upper bound, set point.
    using Values = std::array<resource::measure::FcValue, 3>;
    using Callback = std::function<void(Values)>;

    /// Takes exactly one property; anything else is reported, and gives no rows and empty values.
    /// \p propertyName is the name by which the presentation of the values is chosen; it may be empty.
    EditBoundedValuePropertyPopupController(
        std::vector<std::shared_ptr<resource::property::FcPropertyBoundedValue>> objects,
        std::string propertyName);
    ~EditBoundedValuePropertyPopupController();
    EditBoundedValuePropertyPopupController(EditBoundedValuePropertyPopupController const&) = delete;
    EditBoundedValuePropertyPopupController&
    operator=(EditBoundedValuePropertyPopupController const&) = delete;

    /// Takes \p control, and fills its list.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets the values when it closes, whether or not they were changed, and may
    /// destroy this object. Without a control this is reported, and \p callback dropped.
    void show(Callback callback);

private:
    [[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase>
    presentationFor(resource::measure::FcValue const& value) const;
    [[nodiscard]] bool hasRow(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::string handleGetItemString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::string handleGetItemEditString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::optional<qev::ui::CheckState>
    handleGetCheckState(qev::ui::ListControl::ItemInfo const& item) const;
    void handleCheckBoxClicked(qev::ui::ListControl::ItemInfo const& item);
    /// Gives the empty value of a row the type that it has to have; leaves it empty where that is not known.
    void giveType(std::size_t row);
    [[nodiscard]] qev::ui::ListControl::LabelEditBeginResultParams
    handleLabelEditBegin(qev::ui::ListControl::LabelEditBeginParams const& params) const;
    void handleLabelEditEnd(qev::ui::ListControl::LabelEditEndParams const& params);
    void handleClosed() const;

    ListPopup m_popup;
    std::vector<std::shared_ptr<resource::property::FcPropertyBoundedValue>> m_objects;
    Values m_values;
    std::vector<std::string> m_labels;
    std::string m_propertyName;
    Callback m_callback;
};

} // namespace qev::fc::ui
