#pragma once

#include "Core/Plugin/AbstractPluginAdministrator.h"

namespace qev::plugin {

/// Holds the plug-ins that it is given, in that order.
class HOSTCORE_EXPORT PluginAdministrator final : public AbstractPluginAdministrator
{
public:
    /// Null is passed over.
    void add(std::shared_ptr<BaseInterface> plugin);
    [[nodiscard]] std::vector<std::shared_ptr<BaseInterface>> getPlugins() const override
    {
        return m_plugins;
    }

private:
    std::vector<std::shared_ptr<BaseInterface>> m_plugins;
};

} // namespace qev::plugin
