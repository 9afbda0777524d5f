#include "FileQuestions.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

namespace qev::application {

namespace {

QString tr(char const* text) { return QCoreApplication::translate("FileQuestions", text); }

QString getFilters() { return tr("IFC files (*.ifc *.IFC *.stp *.step);;All files (*)"); }

FileQuestions::Leave askAboutLeaving(QWidget& window, QString const& fileName)
{
    auto const answer = QMessageBox::warning(
        &window, tr("Unsaved changes"), tr("%1 has changes that are not saved. Save them?").arg(fileName),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return FileQuestions::Leave::Save;
    return answer == QMessageBox::Discard ? FileQuestions::Leave::Discard : FileQuestions::Leave::Stay;
}

bool askAboutOverwriting(QWidget& window, QString const& fileName)
{
    QMessageBox box(
        QMessageBox::Warning, tr("The file has changed"),
        tr("Another program has changed %1 since it was opened. Saving replaces those changes by yours.")
            .arg(fileName),
        QMessageBox::Cancel, &window);
    auto* const overwrite = box.addButton(tr("Overwrite"), QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Cancel);
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
        QMessageBox box(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), text,
                        QMessageBox::Ok, &window);
        box.setInformativeText(details);
        box.exec();
    };
    questions.pathToOpen = [&window](QString const& folder) {
        return QFileDialog::getOpenFileName(&window, tr("Open an IFC file"), folder, getFilters());
    };
    questions.pathToSave = [&window](QString const& path) {
        return QFileDialog::getSaveFileName(&window, tr("Save as"), path, getFilters());
    };
    return questions;
}

} // namespace qev::application
