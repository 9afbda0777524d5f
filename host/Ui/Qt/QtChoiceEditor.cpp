#include "Ui/Qt/QtChoiceEditor.h"

#include <QLineEdit>

namespace qev::ui {

QComboBox* QtChoiceEditor::create(QWidget* parent, QStyledItemDelegate& delegate, bool takesOtherTexts)
{
    auto* const combo = new QComboBox(parent);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setEditable(takesOtherTexts);
    if (takesOtherTexts) {
        // What is typed stays as typed, also where it begins like an entry.
        combo->setCompleter(nullptr);
        combo->lineEdit()->setFrame(false);
    }
    QObject::connect(combo, &QComboBox::activated, &delegate, [&delegate, combo] {
        emit delegate.commitData(combo);
        emit delegate.closeEditor(combo);
    });
    return combo;
}

} // namespace qev::ui
