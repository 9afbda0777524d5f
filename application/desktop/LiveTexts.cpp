#include "LiveTexts.h"

#include "Texts.h"

#include <utility>

namespace qev::application {

void LiveTexts::keep(std::function<void()> set)
{
    set();
    m_setters.push_back(std::move(set));
}

void LiveTexts::keep(QAction& action, std::string key)
{
    keep([&action, key = std::move(key)] { action.setText(getText(key)); });
}

void LiveTexts::renew() const
{
    for (auto const& set : m_setters)
        set();
}

} // namespace qev::application
