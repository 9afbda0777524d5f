#include "FileQuestions.h"

#include "DialogButtons.h"
#include "Texts.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace qev::application {

namespace {

FileQuestions::Leave askAboutLeaving(QWidget& window, QString const& fileName)
{
    QMessageBox box(QMessageBox::Warning, getText("Question_UnsavedTitle"),
                    getText("Question_Unsaved", {fileName}), QMessageBox::NoButton, &window);
    auto const* const save = box.addButton(getText("Button_Save"), QMessageBox::AcceptRole);
    auto const* const discard = box.addButton(getText("Button_Discard"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(getText("Button_Cancel"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() == save)
        return FileQuestions::Leave::Save;
    return box.clickedButton() == discard ? FileQuestions::Leave::Discard : FileQuestions::Leave::Stay;
}

bool askAboutOverwriting(QWidget& window, QString const& fileName)
{
    QMessageBox box(QMessageBox::Warning, getText("Question_ChangedTitle"),
                    getText("Question_Changed", {fileName}), QMessageBox::NoButton, &window);
    auto const* const overwrite = box.addButton(getText("Button_Overwrite"), QMessageBox::DestructiveRole);
    auto* const cancel = box.addButton(getText("Button_Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == overwrite;
}

} // namespace

FileQuestions FileQuestions::asDialogs(QWidget& window)
{
    FileQuestions questions;
    questions.leaveChanges = [&window](QString const& fileName) { return askAboutLeaving(window, fileName); };
    questions.overwriteChanged = [&window](QString const& fileName) {
        return askAboutOverwriting(window, fileName);
    };
    questions.tellProblem = [&window](QString const& text, QString const& details) {
        showMessage(window, QMessageBox::Warning, text, details);
    };
    questions.pathToOpen = [&window](QString const& folder) {
        return QFileDialog::getOpenFileName(&window, getText("Question_OpenTitle"), folder,
                                            getText("Question_FileTypes"));
    };
    questions.pathToSave = [&window](QString const& path) {
        return QFileDialog::getSaveFileName(&window, getText("Question_SaveAsTitle"), path,
                                            getText("Question_FileTypes"));
    };
    return questions;
}

} // namespace qev::application
