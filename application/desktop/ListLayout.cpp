#include "ListLayout.h"

#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <optional>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QUrl>

namespace qev::application {

namespace {

using ui::fromQString;
using ui::toQString;

constexpr auto group = "list/layouts";

/// Names may hold what has a meaning in the keys of settings.
QString keyOf(QString const& name) { return QString::fromLatin1(QUrl::toPercentEncoding(name)); }

std::optional<std::size_t> indexOf(std::vector<ListColumn> const& columns, std::string const& id)
{
    auto const found = std::find_if(columns.begin(), columns.end(),
                                    [&](ListColumn const& column) { return column.id == id; });
    return found == columns.end() ? std::nullopt : std::optional(found->index);
}

} // namespace

ListLayout ListLayout::of(std::vector<ListColumn> const& columns, ui::ListControlSettings const& settings)
{
    auto order = settings.columnOrder;
    if (order.empty())
        for (auto const& column : columns)
            order.push_back(column.index);
    ListLayout layout;
    for (auto const index : order) {
        if (settings.hiddenColumns.contains(index) || index >= columns.size())
            continue;
        auto const width = index < settings.columnWidths.size() ? settings.columnWidths[index] : 0;
        layout.columns.push_back({columns[index].id, width});
    }
    for (auto const& sorted : settings.sorting)
        if (sorted.column < columns.size())
            layout.sorting.push_back({columns[sorted.column].id, sorted.isDescending});
    return layout;
}

ui::ListControlSettings ListLayout::settingsFor(std::vector<ListColumn> const& present) const
{
    ui::ListControlSettings settings;
    for (auto const& column : present)
        settings.hiddenColumns.insert(column.index);
    settings.columnWidths.resize(present.size());
    for (auto const& column : columns) {
        auto const index = indexOf(present, column.id);
        if (!index || settings.hiddenColumns.erase(*index) == 0)
            continue;
        settings.columnOrder.push_back(*index);
        settings.columnWidths[*index] = column.width;
    }
    for (auto const hidden : settings.hiddenColumns)
        settings.columnOrder.push_back(hidden);
    for (auto const& sorted : sorting)
        if (auto const index = indexOf(present, sorted.id))
            settings.sorting.push_back({*index, sorted.isDescending});
    return settings;
}

QByteArray ListLayout::toJson() const
{
    QJsonArray columnArray;
    for (auto const& column : columns)
        columnArray.append(
            QJsonObject{{"id", toQString(column.id)}, {"width", static_cast<int>(column.width)}});
    QJsonArray sortingArray;
    for (auto const& sorted : sorting)
        sortingArray.append(QJsonObject{{"id", toQString(sorted.id)}, {"descending", sorted.isDescending}});
    return QJsonDocument(QJsonObject{{"columns", columnArray}, {"sorting", sortingArray}})
        .toJson(QJsonDocument::Compact);
}

ListLayout ListLayout::fromJson(QByteArray const& json)
{
    auto const document = QJsonDocument::fromJson(json).object();
    ListLayout layout;
    for (auto const& entry : document["columns"].toArray())
        layout.columns.push_back({fromQString(entry.toObject()["id"].toString()),
                                  static_cast<unsigned int>(std::max(0, entry.toObject()["width"].toInt()))});
    for (auto const& entry : document["sorting"].toArray())
        layout.sorting.push_back(
            {fromQString(entry.toObject()["id"].toString()), entry.toObject()["descending"].toBool()});
    return layout;
}

QStringList ListLayout::names()
{
    QSettings settings;
    settings.beginGroup(group);
    QStringList names;
    for (auto const& key : settings.childKeys())
        names.push_back(QUrl::fromPercentEncoding(key.toLatin1()));
    names.sort(Qt::CaseInsensitive);
    return names;
}

ListLayout ListLayout::load(QString const& name)
{
    QSettings settings;
    settings.beginGroup(group);
    return fromJson(settings.value(keyOf(name)).toByteArray());
}

void ListLayout::store(QString const& name) const
{
    QSettings settings;
    settings.beginGroup(group);
    settings.setValue(keyOf(name), toJson());
}

void ListLayout::remove(QString const& name)
{
    QSettings settings;
    settings.beginGroup(group);
    settings.remove(keyOf(name));
}

} // namespace qev::application
