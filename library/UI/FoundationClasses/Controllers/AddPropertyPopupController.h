#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ifc::def {
class SchemaPset;
namespace xml {
class Def;
class SetDef;
} // namespace xml
} // namespace qev::ifc::def

namespace qev::fc::ui {

/// A popup that lists the properties or quantities of a set of the standard that not all edited sets have
/// yet, and below them a row that adds them all. A click on a row hands the choice on.
///
/// Properties that refer to an object are listed, and cannot be chosen.
/// Shares the ownership of the sets; the definitions belong to the schema.
class QEVFOUNDATIONCLASSESUI_EXPORT AddPropertyPopupController
{
public:
    using Callback = std::function<void(std::vector<ifc::def::xml::Def const*>)>;
    using Sets = std::vector<std::shared_ptr<core::kernel::FcPropertySetDefinition>>;

    /// For a set that no object has yet: `setPsetName` and `fillItems` say which.
    AddPropertyPopupController();
    /// For sets of one name, which says their definition. Sets of several names, and a name that the standard
    /// does not know, are reported, and give no rows; sets without a name have none either.
    explicit AddPropertyPopupController(Sets psets);
    /// The same with the sets of \p schema, which outlives this object. Null is reported, and gives no rows.
    AddPropertyPopupController(Sets psets, ifc::def::SchemaPset const* schema);
    ~AddPropertyPopupController();
    AddPropertyPopupController(AddPropertyPopupController const&) = delete;
    AddPropertyPopupController& operator=(AddPropertyPopupController const&) = delete;

    /// The name of the set in the standard, by which the texts of its properties are looked up.
    void setPsetName(std::string name) { m_psetName = std::move(name); }
    [[nodiscard]] std::string const& getPsetName() const { return m_psetName; }
    /// Appends the rows for \p set, which outlives this object.
    void fillItems(ifc::def::xml::SetDef const& set);

    /// Takes \p control, and fills its list.
    void attachToControl(std::unique_ptr<ListPopup::Control> control);
    /// Shows the list; \p callback gets what was chosen, and may destroy this object. Without a control this
    /// is reported, and \p callback dropped.
    void show(Callback callback);

private:
    void collectItems(ifc::def::SchemaPset const* schema);
    [[nodiscard]] bool isPresentInAllPsets(std::string_view propertyName) const;
    [[nodiscard]] bool isAddAllRow(std::size_t row) const;
    /// A row with a definition that cannot be chosen.
    [[nodiscard]] bool isUnsupportedRow(std::size_t row) const;
    [[nodiscard]] static std::string handleGetColumnHeaderString(std::size_t column);
    [[nodiscard]] std::string handleGetItemString(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] qev::ui::ListControl::ItemStyle
    handleGetItemStyle(qev::ui::ListControl::ItemInfo const& item) const;
    void handleItemActivated(qev::ui::ListControl::ItemInfo const& item) const;
    [[nodiscard]] std::vector<ifc::def::xml::Def const*> getSupportedItems() const;

    std::string m_psetName;
    ListPopup m_popup;
    Sets m_psets;
    /// Ends with null for the row that adds all, unless there are no rows.
    std::vector<ifc::def::xml::Def const*> m_items;
    Callback m_callback;
};

} // namespace qev::fc::ui
