#include "Core/Plugin/PluginAdministrator.h"

#include <utility>

namespace qev::plugin {

namespace {

std::shared_ptr<AbstractPluginAdministrator>& administratorInUse()
{
    static std::shared_ptr<AbstractPluginAdministrator> administrator;
    return administrator;
}

} // namespace

AbstractPluginAdministrator& AbstractPluginAdministrator::current()
{
    static PluginAdministrator none;
    auto const& administrator = administratorInUse();
    return administrator ? *administrator : none;
}

void AbstractPluginAdministrator::setCurrent(std::shared_ptr<AbstractPluginAdministrator> administrator)
{
    administratorInUse() = std::move(administrator);
}

void PluginAdministrator::add(std::shared_ptr<BaseInterface> plugin)
{
    if (plugin)
        m_plugins.push_back(std::move(plugin));
}

} // namespace qev::plugin
