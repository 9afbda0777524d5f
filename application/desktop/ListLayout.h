#pragma once

#include "HeadlessList.h"
#include "Ui/Window/Controls/ListControl/ListControlSettings.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace qev::application {

/// How the columns of a list of objects are arranged, by their ids, so that it can be used for other objects
/// too.
struct ListLayout
{
    struct Column
    {
        std::string id;
        /// In pixels; 0 for the default.
        unsigned int width = 0;

        friend bool operator==(Column const&, Column const&) = default;
    };

    struct SortedBy
    {
        std::string id;
        bool isDescending = false;

        friend bool operator==(SortedBy const&, SortedBy const&) = default;
    };

    /// The columns that are shown, from left to right; all others are hidden.
    std::vector<Column> columns;
    std::vector<SortedBy> sorting;

    friend bool operator==(ListLayout const&, ListLayout const&) = default;

    /// The layout of a list with \p columns and \p settings.
    [[nodiscard]] static ListLayout of(std::vector<ListColumn> const& columns,
                                       ui::ListControlSettings const& settings);
    /// What arranges a list with \p columns this way. Columns that it does not have are passed over.
    [[nodiscard]] ui::ListControlSettings settingsFor(std::vector<ListColumn> const& columns) const;

    [[nodiscard]] QByteArray toJson() const;
    /// An empty layout for bytes that `toJson` did not make.
    [[nodiscard]] static ListLayout fromJson(QByteArray const& json);

    /// The names of the layouts that the user has kept, by name.
    [[nodiscard]] static QStringList names();
    [[nodiscard]] static ListLayout load(QString const& name);
    void store(QString const& name) const;
    static void remove(QString const& name);
};

} // namespace qev::application
