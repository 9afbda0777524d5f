#include "UI/FoundationClasses/Controllers/ListPopup.h"

#include "Core/Assert/Assert.h"

#include <string>

namespace qev::fc::ui {

bool ListPopup::show(std::string_view controllerName) const
{
    if (!m_control) {
        reportOfPopup(controllerName, "show", "Not attached to any control yet.");
        return false;
    }
    list().show();
    return true;
}

void reportOfPopup(std::string_view controllerName, std::string_view operation, std::string_view text)
{
    std::string const name(controllerName);
    assert::report(text, "qev::fc::ui::" + name + "::" + std::string(operation),
                   "UI/FoundationClasses/Controllers/" + name);
}

} // namespace qev::fc::ui
