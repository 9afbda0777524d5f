#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace qev::ifc::def {
class SchemaPset;
namespace xml {
class SetDef;
}
} // namespace qev::ifc::def

namespace qev::fc::ui {

/// A popup that lists the sets of the standard that can be added to objects: those that apply to all of them,
/// and that not all of them have yet. A click on a row hands its definition on.
///
/// Shares the ownership of the objects; the definitions belong to the schema.
class QEVFOUNDATIONCLASSESUI_EXPORT AddPsetPopupController
{
public:
    using Callback = std::function<void(ifc::def::xml::SetDef const&)>;

    /// Works out the rows. Without objects, or where they share no class, there are none.
    explicit AddPsetPopupController(std::vector<std::shared_ptr<core::kernel::FcObjectDefinition>> objects);
    /// The same with the sets of \p schema, which outlives this object. Null is reported, and gives no rows.
    AddPsetPopupController(std::vector<std::shared_ptr<core::kernel::FcObjectDefinition>> objects,
                           ifc::def::SchemaPset const* schema);
    ~AddPsetPopupController();
    AddPsetPopupController(AddPsetPopupController const&) = delete;
    AddPsetPopupController& operator=(AddPsetPopupController const&) = delete;

    /// Takes \p control, and fills its list.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets the definition of the row that is clicked, and may destroy this
    /// object. Without a control this is reported, and \p callback dropped.
    void show(Callback callback);

private:
    void collectSets(ifc::def::SchemaPset const& schema);
    [[nodiscard]] static std::string handleGetColumnHeaderString(std::size_t column);
    void handleItemActivated(qev::ui::ListControl::ItemInfo const& item) const;

    ListPopup m_popup;
    std::vector<std::shared_ptr<core::kernel::FcObjectDefinition>> m_objects;
    std::vector<ifc::def::xml::SetDef const*> m_sets;
    Callback m_callback;
};

} // namespace qev::fc::ui
