#pragma once

#include "HostUiQtExport.h"
#include "Ui/List/ListEditing.h"

#include <functional>
#include <QStyledItemDelegate>

namespace qev::ui {

/// Makes the editors of a list's cells. What is to be edited is the view's matter.
class HOSTUIQT_EXPORT QtListDelegate final : public QStyledItemDelegate
{
public:
    /// Gives the edit that an editor is wanted for; null when there is none.
    using EditSource = std::function<ListEdit const*()>;
    /// Takes what the user has typed; or the entry that was chosen, with its text.
    using Commit = std::function<void(QString const& text, std::optional<std::size_t> entry)>;

    QtListDelegate(EditSource source, Commit commit, QObject* parent = nullptr);
    ~QtListDelegate() override;

    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;
    void updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                              QModelIndex const& index) const override;

protected:
    /// Clicks are handled by the view.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, QStyleOptionViewItem const& option,
                     QModelIndex const& index) override;

private:
    [[nodiscard]] static QWidget* createLine(QWidget* parent, ListEdit const& edit);
    [[nodiscard]] QWidget* createChoice(QWidget* parent, ListEdit const& edit) const;

    EditSource m_source;
    Commit m_commit;
};

} // namespace qev::ui
