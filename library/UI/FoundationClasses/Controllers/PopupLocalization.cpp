#include "UI/FoundationClasses/Controllers/PopupLocalization.h"

#include "Core/Assert/Assert.h"
#include "Core/Localization/Dictionaries.h"
#include "Format/Ifc/Schema/Xml/Def.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"
#include "UI/FoundationClasses/LocalizedText.h"

namespace qev::fc::ui {

namespace {

std::string standardText(std::string const& key, std::string const& fallback)
{
    return localizedText(localization::Dictionaries::getContexts("IFC"), key,
                         [&fallback] { return fallback; });
}

} // namespace

template <class Definition>
std::string PopupLocalization::getLocalizedItemString(std::vector<Definition*> const& items,
                                                      qev::ui::ListControl::ItemInfo const& itemInfo,
                                                      std::string const& prefix)
{
    auto const row = itemInfo.item.value_or(0);
    if (row >= items.size())
        return {};
    auto const& definition = *items[row];
    switch (itemInfo.column.value_or(0)) {
    case 0:
        return standardText(prefix + definition.name, definition.name);
    case 1:
        return standardText(definition.name + "_Description", definition.description);
    default:
        assert::report("Unknown column", "qev::fc::ui::PopupLocalization::getLocalizedItemString",
                       "UI/FoundationClasses/Controllers/PopupLocalization");
        return {};
    }
}

template std::string
PopupLocalization::getLocalizedItemString(std::vector<ifc::def::xml::SetDef const*> const& items,
                                          qev::ui::ListControl::ItemInfo const& itemInfo,
                                          std::string const& prefix);
template std::string
PopupLocalization::getLocalizedItemString(std::vector<ifc::def::xml::Def const*> const& items,
                                          qev::ui::ListControl::ItemInfo const& itemInfo,
                                          std::string const& prefix);

} // namespace qev::fc::ui
