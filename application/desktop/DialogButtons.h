#pragma once

#include "Texts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>

namespace qev::application {

/// Buttons that accept and reject \p dialog, which takes them over. All texts are the program's own: those of
/// the toolkit are not there in every language.
[[nodiscard]] QDialogButtonBox* makeButtons(QDialog& dialog,
                                            QString const& acceptText = getText("Button_Ok"));

/// Asks for one line of text. \returns it without blanks at its ends; empty when the user thinks better of it
[[nodiscard]] QString askForText(QWidget& parent, QString const& title, QString const& label,
                                 QString const& text = {});

/// Tells the user something, under the name of the program. \p details may be empty.
void showMessage(QWidget& parent, QMessageBox::Icon icon, QString const& text, QString const& details = {});

} // namespace qev::application
