#pragma once

#include "HostUiQtExport.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <QStyledItemDelegate>

namespace qev::ui {

/// Draws the cells of a property grid and makes the editors of values.
///
/// All measures come from the font and the style, all colours from the palette and the row.
class HOSTUIQT_EXPORT QtPropertyGridDelegate final : public QStyledItemDelegate
{
public:
    explicit QtPropertyGridDelegate(QObject* parent = nullptr);
    ~QtPropertyGridDelegate() override;

    void paint(QPainter* painter, QStyleOptionViewItem const& option,
               QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;
    void updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                              QModelIndex const& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, QStyleOptionViewItem const& option,
                   QModelIndex const& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;
    /// Clicks are handled by the view, for check boxes and buttons alike.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, QStyleOptionViewItem const& option,
                     QModelIndex const& index) override;

private:
    void paintName(QPainter& painter, QStyleOptionViewItem const& option, PropertyGridRow const& row) const;
    void paintValue(QPainter& painter, QStyleOptionViewItem const& option, PropertyGridRow const& row) const;
    void paintButtons(QPainter& painter, QStyleOptionViewItem const& option, QModelIndex const& index) const;
    [[nodiscard]] QWidget* createChoiceEditor(QWidget* parent, PropertyGridRow const& row) const;
};

} // namespace qev::ui
