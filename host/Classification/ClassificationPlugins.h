#pragma once

#include "Classification/ClassificationSystem.h"
#include "Core/Plugin/AbstractPluginAdministrator.h"
#include "HostClassificationExport.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace qev::classification {

/// The plug-ins of a program that offers systems of classification out of files.
class HOSTCLASSIFICATION_EXPORT ClassificationPlugins final : public plugin::AbstractPluginAdministrator
{
public:
    ClassificationPlugins();
    ~ClassificationPlugins() override;

    /// Offers the systems of a file, or of all files in a folder that may hold one, behind those that are
    /// offered already. A file that was read before is read again, and its systems stay at their place.
    /// \returns what could not be read, a line each.
    std::vector<std::string> read(std::filesystem::path const& fileOrFolder);

    [[nodiscard]] std::vector<std::shared_ptr<plugin::BaseInterface>> getPlugins() const override;

private:
    struct File
    {
        std::filesystem::path path;
        std::vector<std::shared_ptr<ClassificationSystem>> systems;
    };

    std::vector<File> m_files;
};

} // namespace qev::classification
