#pragma once

#include "HostUiQtExport.h"

#include <QFrame>

class QLineEdit;
class QListWidget;
class QVBoxLayout;

namespace qev::ui {

class QtListControl;

/// What opens on the header of a list: how to sort by a column and filter it, and which columns are shown.
/// It closes when the user clicks elsewhere; everything takes effect at once.
class HOSTUIQT_EXPORT QtListHeaderPanel final : public QFrame
{
public:
    /// About \p column of \p list, which is the parent.
    QtListHeaderPanel(QtListControl& list, int column);
    ~QtListHeaderPanel() override;

    [[nodiscard]] QLineEdit& getFilterBox() const { return *m_filter; }
    /// Where the list of columns is searched.
    [[nodiscard]] QLineEdit& getSearchBox() const { return *m_search; }
    /// The columns that the user may hide and show, in the order on the screen, each with a check box.
    [[nodiscard]] QListWidget& getColumnList() const { return *m_columnList; }

private:
    void addSortButtons(QVBoxLayout& layout);
    void addFilter(QVBoxLayout& layout);
    void addColumns(QVBoxLayout& layout);
    void fillColumnList();
    void searchColumns(QString const& text);

    QtListControl& m_list;
    int m_column;
    QLineEdit* m_filter;
    QLineEdit* m_search;
    QListWidget* m_columnList;
    bool m_isFilling = false;
};

} // namespace qev::ui
