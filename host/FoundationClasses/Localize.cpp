#include "FoundationClasses/Localize.h"

#include "Core/Localization/Dictionaries.h"
#include "Core/Localization/LocalizationAdmin.h"

#include <optional>

namespace qev::fc {

namespace {

std::optional<std::string> textOf(std::string const& key)
{
    for (std::string const& context : localization::Dictionaries::getContexts("IFC")) {
        if (auto text = resource::localization::getAdminInstance().text(context, key))
            return text;
    }
    return std::nullopt;
}

} // namespace

std::string localize(std::string_view key) { return localizeWithFallback(key, key); }

std::string localize(std::string_view entity, std::string_view key)
{
    std::string qualified(entity);
    qualified += '.';
    qualified += key;
    return localizeWithFallback(qualified, key);
}

std::string localizeWithFallback(std::string_view key, std::string_view fallback)
{
    return textOf(std::string(key)).value_or(std::string(fallback));
}

} // namespace qev::fc
