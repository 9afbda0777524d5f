#include "RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace qev::application {

namespace {

constexpr auto settingsKey = "recentFiles";

QStringList without(QStringList files, QString const& path)
{
    files.removeAll(QFileInfo(path).absoluteFilePath());
    return files;
}

} // namespace

QStringList RecentFiles::get() { return QSettings().value(settingsKey).toStringList(); }

void RecentFiles::add(QString const& path)
{
    auto files = without(get(), path);
    files.prepend(QFileInfo(path).absoluteFilePath());
    QSettings().setValue(settingsKey, QStringList(files.mid(0, limit)));
}

void RecentFiles::remove(QString const& path) { QSettings().setValue(settingsKey, without(get(), path)); }

} // namespace qev::application
