#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qev::ui {

/// Texts of this program are UTF-8, those of Qt UTF-16.
[[nodiscard]] inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string fromQString(QString const& text) { return text.toStdString(); }

} // namespace qev::ui
