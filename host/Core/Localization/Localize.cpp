#include "Core/Localization/Localize.h"

#include "Core/Localization/LocalizationAdmin.h"

#include <cstddef>

namespace qev {

std::string localize(std::string_view key, std::string_view context)
{
    return resource::localization::getAdminInstance().text(context, key).value_or(std::string(key));
}

std::string localize(std::string_view key, std::string_view context,
                     std::vector<std::string> const& arguments)
{
    std::string const text = localize(key, context);
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bool const isPlace =
            text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        auto const argument = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : arguments.size();
        if (argument < arguments.size()) {
            result += arguments[argument];
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace qev
