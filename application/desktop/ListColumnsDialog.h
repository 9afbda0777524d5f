#pragma once

#include "HeadlessList.h"

#include <QDialog>
#include <QLineEdit>
#include <QTreeWidget>
#include <set>
#include <vector>

namespace qev::application {

/// Lets the user choose columns by their sets.
class ListColumnsDialog final : public QDialog
{
public:
    /// Offers \p columns; those in \p shown are chosen at first. \p setNames tells the set of each column,
    /// empty for columns of no set.
    ListColumnsDialog(std::vector<ListColumn> const& columns, std::vector<std::string> const& setNames,
                      std::set<std::size_t> const& shown, QWidget* parent = nullptr);
    ~ListColumnsDialog() override;

    /// The columns chosen.
    [[nodiscard]] std::set<std::size_t> getChosen() const;

    [[nodiscard]] QLineEdit& getSearchBox() const { return *m_search; }
    /// A branch for each set, with its properties below.
    [[nodiscard]] QTreeWidget& getTree() const { return *m_tree; }

private:
    void fill(std::vector<ListColumn> const& columns, std::vector<std::string> const& setNames,
              std::set<std::size_t> const& shown);
    void search(QString const& text);

    QLineEdit* m_search;
    QTreeWidget* m_tree;
};

} // namespace qev::application
