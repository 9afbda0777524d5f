#include "Core/Plugin/PluginAdministrator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace qev::plugin;

struct Plugin : BaseInterface
{
};

TEST(PluginAdministrator, HoldsPluginsInTheOrderInWhichTheyCame)
{
    PluginAdministrator administrator;
    EXPECT_TRUE(administrator.getPlugins().empty());
    auto const first = std::make_shared<Plugin>();
    auto const second = std::make_shared<Plugin>();
    administrator.add(first);
    administrator.add(nullptr);
    administrator.add(second);
    EXPECT_THAT(administrator.getPlugins(), testing::ElementsAre(first, second));
    EXPECT_THAT(administrator.getPlugins(), testing::ElementsAre(first, second));
}

TEST(PluginAdministrator, TheProgramHasOneWithoutPluginsUntilItSetsItsOwn)
{
    EXPECT_TRUE(AbstractPluginAdministrator::current().getPlugins().empty());
    auto const administrator = std::make_shared<PluginAdministrator>();
    administrator->add(std::make_shared<Plugin>());
    AbstractPluginAdministrator::setCurrent(administrator);
    EXPECT_EQ(&AbstractPluginAdministrator::current(), administrator.get());
    AbstractPluginAdministrator::setCurrent(nullptr);
    EXPECT_TRUE(AbstractPluginAdministrator::current().getPlugins().empty());
}

} // namespace
