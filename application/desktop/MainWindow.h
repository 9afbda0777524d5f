#pragma once

#include "InspectorSession.h"

#include <functional>
#include <memory>
#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QTreeView>
#include <vector>

namespace qev::ui {
class QtBackend;
}

namespace qev::application {

class MessagesPanel;
class PropertyPane;
class SearchPanel;
class StructureModel;

/// The window of the program: the structure of the building, the properties of the selected object,
/// and the messages of the file.
class MainWindow final : public QMainWindow
{
public:
    /// What the user answers when unsaved changes are about to go.
    enum class Leave
    {
        Save,
        Discard,
        Stay,
    };

    /// How the window asks. Each may be replaced, for a program without a user.
    struct Questions
    {
        std::function<Leave(QString const& fileName)> leaveChanges;
        /// True when the other program's changes may be overwritten.
        std::function<bool(QString const& fileName)> overwriteChanged;
        /// Shows what went wrong; \p details may be empty.
        std::function<void(QString const& text, QString const& details)> tellProblem;
        /// A path to save to; empty when the user has thought better of it.
        std::function<QString(QString const& path)> pathToSave;
    };

    explicit MainWindow(std::shared_ptr<ui::QtBackend> backend);
    ~MainWindow() override;

    void setQuestions(Questions questions) { m_questions = std::move(questions); }

    /// Opens a file, after asking about unsaved changes of the present one.
    bool openFile(QString const& path);
    /// Closes the file; false when the user wants to stay.
    bool closeFile();
    bool save();
    bool saveAs();
    /// Selects the object, in the structure too. False when there is none with that GlobalId.
    bool selectObject(QString const& globalId);

    void restoreWindow();
    void storeWindow() const;

    [[nodiscard]] InspectorSession& getSession() { return m_session; }
    [[nodiscard]] PropertyPane& getProperties() const { return *m_properties; }
    [[nodiscard]] SearchPanel& getSearch() const { return *m_search; }
    [[nodiscard]] QTreeView& getStructure() const { return *m_structure; }
    [[nodiscard]] MessagesPanel& getMessages() const { return *m_messages; }
    /// The line that says what an edit of the current row touches beyond the object.
    [[nodiscard]] QString getNote() const { return m_note->text(); }
    [[nodiscard]] QString getFileText() const { return m_fileText->text(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    static Questions createQuestions(MainWindow& window);
    void createPanels();
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void fillRecentMenu();
    QAction* addAction(QMenu& menu, QString const& text, QKeySequence const& shortcut,
                       std::function<void()> action);

    void chooseFile();
    bool mayLeaveFile();
    bool finishSave(ifc::SaveResult const& result);
    void tellOpeningFailed(QString const& path);
    void showFile();
    void select(fc::EntityIndex object);
    void travel(bool back);
    void copyFromFocus();
    void onModelChanged(std::vector<fc::EntityIndex> const& touched);
    void updateActions();
    void updateTitle();
    void updateNote();
    void updateMessages();

    std::shared_ptr<ui::QtBackend> m_backend;
    InspectorSession m_session;
    Questions m_questions;
    StructureModel* m_structureModel;
    QTreeView* m_structure;
    SearchPanel* m_search = nullptr;
    PropertyPane* m_properties = nullptr;
    MessagesPanel* m_messages = nullptr;
    QDockWidget* m_structureDock = nullptr;
    QDockWidget* m_messagesDock = nullptr;
    QLabel* m_note;
    QLabel* m_fileText;
    QMenu* m_recentMenu = nullptr;
    QAction* m_save = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_close = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_find = nullptr;
    QAction* m_findNext = nullptr;
    QAction* m_showUnused = nullptr;
    QAction* m_expandAll = nullptr;
    QAction* m_collapseAll = nullptr;
    std::size_t m_shownMessages = 0;
};

} // namespace qev::application
