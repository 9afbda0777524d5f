#include "Core/Localization/Localize.h"

#include "Core/Localization/LocalizationAdmin.h"

namespace qev {

std::string localize(std::string_view key, std::string_view context)
{
    return resource::localization::getAdminInstance().text(context, key).value_or(std::string(key));
}

} // namespace qev
