#include "UI/FoundationClasses/LocalizedText.h"

#include "Core/Localization/LocalizationAdmin.h"

namespace qev::fc::ui {

std::string localizedText(std::vector<std::string> const& contexts, std::string const& key,
                          std::function<std::string()> const& fallback)
{
    auto const& admin = qev::resource::localization::getAdminInstance();
    for (auto const& context : contexts) {
        if (auto text = admin.text(context, key))
            return *text;
    }
    return fallback ? fallback() : key;
}

} // namespace qev::fc::ui
