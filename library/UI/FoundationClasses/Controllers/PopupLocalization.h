#pragma once

#include "QevFoundationClassesUiExport.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <string>
#include <vector>

namespace qev::ifc::def::xml {
class Def;
class SetDef;
} // namespace qev::ifc::def::xml

namespace qev::fc::ui {

/// The texts of popups that list definitions: name and description in the user's language.
class QEVFOUNDATIONCLASSESUI_EXPORT PopupLocalization
{
public:
    /// The text of a cell of a list of \p items: in column 0 the name, looked up under \p prefix and the
    /// name, in column 1 the description, looked up under the name and "_Description" without the prefix.
    /// What no dictionary knows stays as the definition has it.
    ///
    /// A row past the end has no text. Other columns are reported, and have none.
    /// \tparam Definition `SetDef const` or `Def const`
    template <class Definition>
    [[nodiscard]] static std::string getLocalizedItemString(std::vector<Definition*> const& items,
                                                            qev::ui::ListControl::ItemInfo const& itemInfo,
                                                            std::string const& prefix);
};

extern template QEVFOUNDATIONCLASSESUI_EXPORT std::string
PopupLocalization::getLocalizedItemString(std::vector<ifc::def::xml::SetDef const*> const& items,
                                          qev::ui::ListControl::ItemInfo const& itemInfo,
                                          std::string const& prefix);
extern template QEVFOUNDATIONCLASSESUI_EXPORT std::string
PopupLocalization::getLocalizedItemString(std::vector<ifc::def::xml::Def const*> const& items,
                                          qev::ui::ListControl::ItemInfo const& itemInfo,
                                          std::string const& prefix);

} // namespace qev::fc::ui
