#include "DialogButtons.h"

#include <QGuiApplication>
#include <QInputDialog>
#include <QPushButton>

namespace qev::application {

QDialogButtonBox* makeButtons(QDialog& dialog, QString const& acceptText)
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(acceptText);
    buttons->button(QDialogButtonBox::Cancel)->setText(getText("Button_Cancel"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

QString askForText(QWidget& parent, QString const& title, QString const& label, QString const& text)
{
    QInputDialog dialog(&parent);
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
    dialog.setTextValue(text);
    dialog.setOkButtonText(getText("Button_Ok"));
    dialog.setCancelButtonText(getText("Button_Cancel"));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().trimmed() : QString();
}

void showMessage(QWidget& parent, QMessageBox::Icon icon, QString const& text, QString const& details)
{
    QMessageBox box(icon, QGuiApplication::applicationDisplayName(), text, QMessageBox::NoButton, &parent);
    box.addButton(getText("Button_Ok"), QMessageBox::AcceptRole);
    box.setInformativeText(details);
    box.exec();
}

} // namespace qev::application
