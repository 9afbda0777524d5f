#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {
class ClassificationInterface;
}

namespace qev::fc::ui {

/// A popup that lists the classification systems of the program's plug-ins, in their order. A click on a row
/// hands its system on; the popup stays open until it loses the focus.
class QEVFOUNDATIONCLASSESUI_EXPORT AddClassificationPopupController
{
public:
    using Callback = std::function<void(std::shared_ptr<classification::ClassificationInterface>)>;

    /// \p objects are those that are to be classified; they are shared, and the rows are the same for all.
    explicit AddClassificationPopupController(
        std::vector<std::shared_ptr<core::kernel::FcObjectDefinition const>> objects);
    ~AddClassificationPopupController();
    AddClassificationPopupController(AddClassificationPopupController const&) = delete;
    AddClassificationPopupController& operator=(AddClassificationPopupController const&) = delete;

    /// The first system of that key, which is compared byte by byte; null when there is none.
    [[nodiscard]] static std::shared_ptr<classification::ClassificationInterface>
    getClassificationInterface(std::string_view key);

    /// Takes \p control, and fills its list.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets the system of the row that is clicked, and may destroy this object.
    /// Without a control this is reported, and \p callback dropped.
    void show(Callback callback);

private:
    [[nodiscard]] std::string handleGetItemString(qev::ui::ListControl::ItemInfo const& item) const;
    void handleItemActivated(qev::ui::ListControl::ItemInfo const& item) const;

    ListPopup m_popup;
    std::vector<std::shared_ptr<core::kernel::FcObjectDefinition const>> m_objects;
    std::vector<std::shared_ptr<classification::ClassificationInterface>> m_interfaces;
    Callback m_callback;
};

} // namespace qev::fc::ui
