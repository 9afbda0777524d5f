#pragma once

#include "Core/Plugin/BaseInterface.h"
#include "HostCoreExport.h"

#include <memory>
#include <vector>

namespace qev::plugin {

/// Knows the plug-ins of the program.
class HOSTCORE_EXPORT AbstractPluginAdministrator
{
public:
    virtual ~AbstractPluginAdministrator() = default;
    AbstractPluginAdministrator(AbstractPluginAdministrator const&) = delete;
    AbstractPluginAdministrator& operator=(AbstractPluginAdministrator const&) = delete;

    /// The administrator of the program: the one that was set, or else one without plug-ins.
    static AbstractPluginAdministrator& current();
    /// Makes \p administrator the one of the program; null takes it away again.
    static void setCurrent(std::shared_ptr<AbstractPluginAdministrator> administrator);

    /// All plug-ins, in an order that stays the same from call to call.
    [[nodiscard]] virtual std::vector<std::shared_ptr<BaseInterface>> getPlugins() const = 0;

protected:
    AbstractPluginAdministrator() = default;
};

} // namespace qev::plugin
