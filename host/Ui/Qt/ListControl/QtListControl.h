#pragma once

#include "HostUiQtExport.h"
#include "Ui/List/ListFinder.h"
#include "Ui/Qt/ListControl/QtListView.h"

#include <optional>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QToolButton>
#include <QWidget>
#include <string>
#include <vector>

namespace qev::ui {

class QtListHeaderPanel;

/// A list: above the cells a box to filter them and one to find a text, below them counts, and what became of
/// the last input. A popup has the cells alone, and the box to filter them where they are many.
///
/// Sorting, filtering and finding go on while the user goes on; the list keeps nothing of the rows but their
/// order, and not even that while they stand in their own.
class HOSTUIQT_EXPORT QtListControl final : public QWidget
{
public:
    /// \p style is made of `ListControl::StyleFlag`s.
    explicit QtListControl(unsigned int style, QWidget* parent = nullptr);
    ~QtListControl() override;

    [[nodiscard]] QtListView& getView() const { return *m_view; }
    [[nodiscard]] QtListItemModel& getCells() const { return *m_cells; }
    [[nodiscard]] QLineEdit& getFilterBox() const { return *m_filterBox; }
    [[nodiscard]] QLineEdit& getFindBox() const { return *m_findBox; }
    [[nodiscard]] QString getCountText() const { return m_counts->text(); }
    /// What became of the last input, where that is not plain to see; empty while there is nothing to tell.
    [[nodiscard]] QString getNotice() const;
    /// A filter, an order or a search is still being worked on.
    [[nodiscard]] bool isWorking() const { return m_work.isActive(); }

    [[nodiscard]] bool isPopup() const { return (m_style & ListControl::PopupStyle) != 0; }
    [[nodiscard]] bool isUsingReportStyle() const;
    /// Gives a popup that has just been shown the focus, and its columns the width of what is in them.
    void openPopup();
    void setItemAndColumnCounts(std::size_t rows, std::size_t columns);
    void addStyleFlags(unsigned int flags);
    void setReadOnly(bool readOnly);
    [[nodiscard]] bool isReadOnly() const { return m_view->getBehaviour().isReadOnly; }

    [[nodiscard]] ListControlSettings getSettings() const;
    void loadSettings(ListControlSettings const& settings);

    void setSorting(std::vector<ListSortColumn> sorting);
    [[nodiscard]] QString getColumnFilter(std::size_t column) const;
    /// An empty text lets all rows pass.
    void setColumnFilter(std::size_t column, QString const& text);
    void setColumnHidden(std::size_t column, bool hidden);
    /// Tells if the owner of the list lets the user hide and show a column.
    [[nodiscard]] bool mayHideColumn(std::size_t column) const;
    /// Gives the columns the places, widths and visibility they have by default.
    void resetArrangement();
    [[nodiscard]] QString getTitle(int column) const;

    /// Opens the box to find a text in the cells.
    void openFindBox();
    /// Makes the next cell with the text of the find box current, or the one before.
    void findNext(bool forwards);
    /// Opens what can be done with a column; it goes by itself.
    QtListHeaderPanel& openHeaderPanel(int column, QPoint const& position);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What is selected and current, by rows that stay the same when their order does not.
    struct Place
    {
        std::vector<std::size_t> rows;
        std::size_t rowCount = 0;
        ListControl::ItemInfo current;
        bool isBlock = false;
        int left = 0;
        int right = 0;
    };

    void createLayout();
    /// What is different in a popup.
    void arrangePopup();
    void fitPopupColumns();
    /// Gives the last column of a popup what the others leave.
    void stretchLastColumn();
    [[nodiscard]] bool hasTexts(int column) const;
    void makeFirstRowCurrent();
    /// Handles a key that the filter box of a popup has no use for. False for one of no use here either.
    bool handleKeyOfPopup(QKeyEvent const& event);
    /// Gives the focus back to where it was before the popup was opened.
    void leavePopup();
    void finishOrder();
    /// In the current language.
    void setTexts();
    void connectView();
    void keepPlace();
    void restorePlace();
    /// Sorting and filter go with their columns, which are those of \p titles now.
    void takeOrderAlong(std::vector<std::string> const& titles);
    void changeFilter(ListFilter filter);
    [[nodiscard]] std::vector<std::size_t> getShownColumns() const;
    void clickHeader(int column);
    void startWork();
    void doWork();
    bool advanceFinder();
    void updateCounts();
    void updateBehaviour();
    void tell(ListEditResult const& result);
    void showNotice(QString const& text, QString const& details);
    [[nodiscard]] QString describe(ListRefusal const& refusal) const;

    unsigned int m_style;
    unsigned int m_flags = 0;
    QtListItemModel* m_cells;
    QtListView* m_view;
    QLineEdit* m_filterBox;
    QWidget* m_findBar;
    QLineEdit* m_findBox;
    QLabel* m_findState;
    QToolButton* m_previousButton = nullptr;
    QToolButton* m_nextButton = nullptr;
    QLabel* m_counts;
    QLabel* m_notice;
    QTimer m_work;
    std::optional<ListFinder> m_finder;
    /// The titles of the columns that sorting and filter are about.
    std::vector<std::string> m_titles;
    std::optional<std::vector<ListSortColumn>> m_sortingForLater;
    std::optional<Place> m_place;
    QPointer<QWidget> m_focusBefore;
};

} // namespace qev::ui
