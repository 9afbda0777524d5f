#include "ListQuestions.h"

#include "DialogButtons.h"
#include "ImportDialog.h"
#include "ListColumnsDialog.h"
#include "ListExport.h"
#include "Texts.h"

#include <QFileDialog>

namespace qev::application {

namespace {

QString getExportFilters()
{
    auto const csv = getText("List_Tables");
    return ListExport::canWriteWorkbooks() ? getText("List_Workbooks") + ";;" + csv : csv;
}

} // namespace

ListQuestions ListQuestions::asDialogs(QWidget& parent)
{
    ListQuestions questions;
    questions.chooseColumns = [](ListColumnsDialog& dialog) { return dialog.exec() == QDialog::Accepted; };
    questions.agreeToImport = [](ImportDialog& dialog) { return dialog.exec() == QDialog::Accepted; };
    questions.pathToExport = [&parent] {
        return QFileDialog::getSaveFileName(&parent, getText("List_ExportTitle"), {}, getExportFilters());
    };
    questions.pathToImport = [&parent] {
        return QFileDialog::getOpenFileName(&parent, getText("List_ImportTitle"), {},
                                            getText("List_Tables") + ";;" + getText("List_AllFiles"));
    };
    questions.nameOfLayout = [&parent] {
        return askForText(parent, getText("List_KeepLayout"), getText("List_LayoutName"));
    };
    questions.tell = [&parent](QString const& text) { showMessage(parent, QMessageBox::Information, text); };
    return questions;
}

} // namespace qev::application
