#pragma once

#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridModel.h"

#include <memory>
#include <QByteArray>
#include <QWidget>

class QSplitter;
class QTextBrowser;

namespace qev::ui {

class QtPropertyGridItemModel;
class QtPropertyGridView;

/// A property grid: the rows, and below them what the current row is about.
class HOSTUIQT_EXPORT QtPropertyGrid final : public QWidget
{
public:
    explicit QtPropertyGrid(QWidget* parent = nullptr);
    ~QtPropertyGrid() override;

    [[nodiscard]] std::shared_ptr<PropertyGridModel> const& getModel() const { return m_rows; }
    [[nodiscard]] QtPropertyGridView& getView() const { return *m_view; }
    [[nodiscard]] QtPropertyGridItemModel& getItemModel() const { return *m_itemModel; }

    /// To be called once the rows have been made anew.
    void adjustLayout();
    /// Makes \p row current and brings it into view, unfolding what it stands below.
    void showRow(PropertyGridRow const& row);
    /// The row that is current; null when none is.
    [[nodiscard]] std::shared_ptr<PropertyGridRow> getCurrentRow() const;

    /// The text below the rows.
    [[nodiscard]] QString getDescriptionText() const;

    /// How the user has divided the grid and what is folded, to be kept and given back.
    [[nodiscard]] QByteArray saveLayout() const;
    /// False, and no change, for bytes that `saveLayout` did not make.
    bool restoreLayout(QByteArray const& layout);

protected:
    void changeEvent(QEvent* event) override;

private:
    void updateDescription();
    void applyFontMeasures();

    std::shared_ptr<PropertyGridModel> m_rows;
    QtPropertyGridItemModel* m_itemModel;
    QtPropertyGridView* m_view;
    QTextBrowser* m_description;
    QSplitter* m_splitter;
};

} // namespace qev::ui
