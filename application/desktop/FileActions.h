#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "FileQuestions.h"
#include "InspectorSession.h"
#include "LiveTexts.h"

#include <QAction>
#include <QMenu>
#include <QObject>

namespace qev::application {

/// Opening, saving and closing: the file menu, and what it does. Asks before changes go.
class FileActions final : public QObject
{
public:
    /// Acts on \p session; shows progress over \p window. Both live longer than the actions.
    FileActions(InspectorSession& session, QWidget& window);
    ~FileActions() override;

    void fill(QMenu& menu, LiveTexts& texts);
    /// To be called before anything else.
    void setQuestions(FileQuestions questions) { m_questions = std::move(questions); }

    /// Opens a file, after asking about unsaved changes of the present one.
    bool open(QString const& path);
    /// Closes the file; false when the user wants to stay.
    bool close();
    bool save();
    bool saveAs();
    /// Asks about unsaved changes, if there are any. False when the user wants to stay.
    bool mayLeave();

    /// Enables the actions that can be done at present.
    void update();

    /// Fired before the file of the session goes.
    EventHandlerContainer<void, void> onLeaving;
    /// Fired when another file, or none, has taken its place; the same one when another could not be opened.
    EventHandlerContainer<void, void> onShown;
    /// Fired when the file was saved, with a word about it for the user.
    EventHandlerContainer<void, void, QString const&> onSaved;

private:
    void fillRecentMenu();
    void choose();
    bool openWithProgress(QString const& path);
    ifc::SaveResult saveWithProgress(step::StepPatch::IfChanged ifChanged);
    ifc::SaveResult saveWithProgress(QString const& path);
    bool finishSave(ifc::SaveResult const& result);
    void tellOpeningFailed(QString const& path);

    InspectorSession& m_session;
    QWidget& m_window;
    FileQuestions m_questions;
    QMenu* m_recentMenu = nullptr;
    QAction* m_save = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_close = nullptr;
};

} // namespace qev::application
