#pragma once

#include <filesystem>
#include <QString>

namespace qev::application {

[[nodiscard]] inline std::filesystem::path toPath(QString const& path) { return {path.toStdU16String()}; }

[[nodiscard]] inline QString fromPath(std::filesystem::path const& path)
{
    return QString::fromStdU16String(path.u16string());
}

} // namespace qev::application
