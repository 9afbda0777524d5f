#include "Classifications.h"

#include "Classification/ClassificationPlugins.h"

namespace qev::application {

namespace {

using classification::ClassificationPlugins;

std::shared_ptr<ClassificationPlugins> makeCurrentPlugins()
{
    auto plugins = std::make_shared<ClassificationPlugins>();
    plugin::AbstractPluginAdministrator::setCurrent(plugins);
    return plugins;
}

} // namespace

std::vector<std::string> addClassifications(std::filesystem::path const& fileOrFolder)
{
    static auto const plugins = makeCurrentPlugins();
    return plugins->read(fileOrFolder);
}

} // namespace qev::application
