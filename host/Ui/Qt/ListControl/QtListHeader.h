#pragma once

#include "HostUiQtExport.h"
#include "Ui/Qt/ListControl/QtListItemModel.h"

#include <QHeaderView>
#include <vector>

namespace qev::ui {

/// The header of a list: titles with marks of sorting and filter. Sections can be moved and resized.
///
/// What the user arranges goes to the `ListColumns` of the list, and comes from there.
class HOSTUIQT_EXPORT QtListHeader final : public QHeaderView
{
public:
    explicit QtListHeader(QtListItemModel& cells, QWidget* parent = nullptr);
    ~QtListHeader() override;

    /// Arranges the sections as the `ListColumns` say; to be called when these have changed.
    void arrange();
    /// The columns that can be seen, from left to right.
    [[nodiscard]] std::vector<int> getShownColumns() const;
    /// The width of a column of which nothing is known but its title.
    [[nodiscard]] int getDefaultWidth(int column) const;

protected:
    void paintSection(QPainter* painter, QRect const& area, int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int column) const override;
    [[nodiscard]] QSize sectionSizeFromContents(int column) const override;

private:
    class Titles;

    void keepOrder();

    QtListItemModel& m_cells;
    Titles* m_titles;
};

} // namespace qev::ui
