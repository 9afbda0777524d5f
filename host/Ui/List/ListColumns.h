#pragma once

#include "HostUiExport.h"
#include "Ui/Window/Controls/ListControl/ListControlSettings.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::ui {

/// The columns of a list: what the owner has said of them, and how the user has arranged them.
///
/// A list may be given other columns at any time. What the user did to a column counts for every later column
/// of the same title: of those with one title, the first for the first, and so on.
class HOSTUI_EXPORT ListColumns
{
public:
    /// \p mode is a `ListControl::CheckBoxMode`; nothing takes the boxes away.
    void setCheckBoxes(std::size_t column, std::optional<int> mode);
    void activateComboBox(std::size_t column);
    /// Hides columns that the user has not shown.
    void setDefaultHidden(std::set<std::size_t> columns);
    /// The columns are those of \p titles from now on. When these are others than before, what the owner has
    /// said counts no more, except what was said since the last call. No titles at all: nothing counts.
    void setTitles(std::vector<std::string> titles);

    [[nodiscard]] std::size_t getCount() const { return m_titles.size(); }
    [[nodiscard]] std::vector<std::string> const& getTitles() const { return m_titles; }
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const;
    [[nodiscard]] bool isComboBox(std::size_t column) const { return m_said.comboBoxes.contains(column); }

    [[nodiscard]] bool isHidden(std::size_t column) const;
    void setHidden(std::size_t column, bool hidden);
    /// In pixels; nothing for the default width.
    [[nodiscard]] std::optional<unsigned int> getWidth(std::size_t column) const;
    void setWidth(std::size_t column, unsigned int width);
    /// All columns from left to right, hidden ones too.
    [[nodiscard]] std::vector<std::size_t> getOrder() const;
    void setOrder(std::vector<std::size_t> const& columns);
    /// Forgets what the user has done.
    void resetArrangement();
    /// The column that is now where \p column was among those of \p titles; nothing when there is none.
    [[nodiscard]] std::optional<std::size_t> findColumn(std::vector<std::string> const& titles,
                                                        std::size_t column) const;

    /// The arrangement, without a sorting.
    [[nodiscard]] ListControlSettings getSettings() const;
    /// Arranges the present columns; before there are any, those that come first.
    void loadSettings(ListControlSettings const& settings);

private:
    /// A title, and how many columns before it have the same.
    using Key = std::pair<std::string, std::size_t>;

    struct Said
    {
        std::map<std::size_t, int> checkBoxes;
        std::set<std::size_t> comboBoxes;
        std::set<std::size_t> defaultHidden;
    };

    struct Arranged
    {
        std::optional<bool> isHidden;
        std::optional<unsigned int> width;
    };

    [[nodiscard]] static std::vector<Key> makeKeys(std::vector<std::string> const& titles);
    [[nodiscard]] Arranged const* findArranged(std::size_t column) const;
    void arrange(ListControlSettings const& settings);

    std::vector<std::string> m_titles;
    std::vector<Key> m_keys;
    Said m_said;
    /// What was said since the titles were last set.
    Said m_saidSince;
    std::map<Key, Arranged> m_arranged;
    /// Empty while the user has moved nothing.
    std::vector<Key> m_order;
    std::optional<ListControlSettings> m_settingsForLater;
};

} // namespace qev::ui
