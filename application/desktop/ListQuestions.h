#pragma once

#include <functional>
#include <QString>
#include <QWidget>

namespace qev::application {

class ImportDialog;
class ListColumnsDialog;

/// How the list of objects asks its user. Each question may be replaced, for a program without a user.
struct ListQuestions
{
    /// Questions as dialogs over \p parent, which lives longer than they do.
    [[nodiscard]] static ListQuestions asDialogs(QWidget& parent);

    /// True when the columns chosen are to be shown.
    std::function<bool(ListColumnsDialog& dialog)> chooseColumns;
    /// True when the changes shown are to be made.
    std::function<bool(ImportDialog& dialog)> agreeToImport;
    /// A path, or a name; empty when the user has thought better of it.
    std::function<QString()> pathToExport;
    std::function<QString()> pathToImport;
    std::function<QString()> nameOfLayout;
    /// Tells what went wrong, or how a work ended.
    std::function<void(QString const& text)> tell;
};

} // namespace qev::application
