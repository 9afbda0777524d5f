#include "UI/FoundationClasses/Property/ObjectDefinitions.h"

namespace qev::fc::ui {

std::string
commonText(std::vector<std::shared_ptr<FcBase>> const& objects, std::string_view function,
           std::string_view path,
           std::function<std::optional<std::string>(core::kernel::FcObjectDefinition&)> const& text)
{
    std::optional<std::string> common;
    bool agree = true;
    forEachObjectDefinition(objects, function, path, [&](core::kernel::FcObjectDefinition& object) {
        auto own = text(object);
        agree = own && (!common || *common == *own);
        if (agree)
            common = std::move(own);
        return agree;
    });
    return agree && common ? *common : std::string();
}

} // namespace qev::fc::ui
