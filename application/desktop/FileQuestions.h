#pragma once

#include <functional>
#include <QString>
#include <QWidget>

namespace qev::application {

/// How the program asks about files. Each question may be replaced, for a program without a user.
struct FileQuestions
{
    /// What the user answers when unsaved changes are about to go.
    enum class Leave
    {
        Save,
        Discard,
        Stay,
    };

    /// Questions as dialogs over \p window, which lives longer than they do.
    [[nodiscard]] static FileQuestions asDialogs(QWidget& window);

    std::function<Leave(QString const& fileName)> leaveChanges;
    /// True when the other program's changes may be overwritten.
    std::function<bool(QString const& fileName)> overwriteChanged;
    /// Shows what went wrong; \p details may be empty.
    std::function<void(QString const& text, QString const& details)> tellProblem;
    /// A path to open; empty when the user has thought better of it.
    std::function<QString(QString const& folder)> pathToOpen;
    /// A path to save to; empty when the user has thought better of it.
    std::function<QString(QString const& path)> pathToSave;
};

} // namespace qev::application
