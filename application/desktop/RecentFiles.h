#pragma once

#include <QString>
#include <QStringList>

namespace qev::application {

/// The files that were open last, kept from one run of the program to the next.
class RecentFiles
{
public:
    static constexpr int limit = 10;

    /// The newest first.
    [[nodiscard]] static QStringList get();
    static void add(QString const& path);
    static void remove(QString const& path);
};

} // namespace qev::application
