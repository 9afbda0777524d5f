#include "Ui/Qt/ListControl/QtListDelegate.h"

#include "Ui/Qt/QtChoiceEditor.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QComboBox>
#include <QLineEdit>
#include <utility>

namespace qev::ui {

QtListDelegate::QtListDelegate(EditSource source, Commit commit, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_source(std::move(source))
    , m_commit(std::move(commit))
{
}

QtListDelegate::~QtListDelegate() = default;

QWidget* QtListDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const& /*option*/,
                                      QModelIndex const& /*index*/) const
{
    auto const* const edit = m_source();
    if (!edit)
        return nullptr;
    auto const type = edit->editor.editType;
    return type == ListControl::DropList || type == ListControl::DropDown ? createChoice(parent, *edit)
                                                                          : createLine(parent, *edit);
}

void QtListDelegate::setEditorData(QWidget* /*editor*/, QModelIndex const& /*index*/) const
{
    // The editor was made with its text; a change of the cell from elsewhere does not overwrite what the
    // user has begun to type.
}

void QtListDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                  QModelIndex const& /*index*/) const
{
    if (auto const* const line = qobject_cast<QLineEdit*>(editor))
        m_commit(line->text(), std::nullopt);
    else if (auto const* const combo = qobject_cast<QComboBox*>(editor)) {
        auto const index = combo->isEditable() ? combo->findText(combo->currentText(), Qt::MatchExactly)
                                               : combo->currentIndex();
        if (index >= 0)
            m_commit(combo->itemText(index), static_cast<std::size_t>(index));
        else if (combo->isEditable())
            m_commit(combo->currentText(), std::nullopt);
    }
}

void QtListDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                          QModelIndex const& /*index*/) const
{
    // The frame goes around the cell. Numbers with all their digits need more room than narrow columns have.
    auto area = option.rect.adjusted(-2, -2, 1, 1);
    area.setWidth(std::max(area.width(), 12 * option.fontMetrics.averageCharWidth()));
    editor->setGeometry(area);
}

bool QtListDelegate::editorEvent(QEvent* /*event*/, QAbstractItemModel* /*model*/,
                                 QStyleOptionViewItem const& /*option*/, QModelIndex const& /*index*/)
{
    return false;
}

QWidget* QtListDelegate::createLine(QWidget* parent, ListEdit const& edit)
{
    auto* const line = new QLineEdit(parent);
    line->setText(toQString(edit.text));
    line->selectAll();
    return line;
}

QWidget* QtListDelegate::createChoice(QWidget* parent, ListEdit const& edit) const
{
    auto* const combo = QtChoiceEditor::create(parent, const_cast<QtListDelegate&>(*this),
                                               edit.editor.editType == ListControl::DropDown);
    for (auto const& entry : edit.editor.items)
        combo->addItem(toQString(entry));
    auto const text = toQString(edit.text);
    combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly));
    if (combo->isEditable()) {
        combo->setEditText(text);
        combo->lineEdit()->selectAll();
    }
    return combo;
}

} // namespace qev::ui
