#pragma once

#include "EditActions.h"
#include "FileActions.h"
#include "InspectorSession.h"
#include "LiveTexts.h"
#include "SettingsActions.h"
#include "ViewActions.h"

#include <memory>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QTabWidget>
#include <QTreeView>
#include <vector>

namespace qev::ui {
class QtBackend;
class QtPropertyGrid;
} // namespace qev::ui

namespace qev::application {

class EntityEditPane;
class ListPane;
class MessagesPanel;
class PropertyPane;
class SearchPanel;
class StructureModel;

/// The window of the program: the structure of the building, the properties of the selected object, the
/// object editor or many objects as a list, and the messages of the file.
///
/// It brings the panels together; what the menus do stands in `FileActions`, `EditActions`, `ViewActions` and
/// `SettingsActions`.
class MainWindow final : public QMainWindow
{
public:
    explicit MainWindow(std::shared_ptr<ui::QtBackend> backend);
    ~MainWindow() override;

    void setQuestions(FileQuestions questions);

    /// Selects the object, in the structure too. False when there is none with that GlobalId.
    bool selectObject(QString const& globalId);

    void restoreWindow();
    void storeWindow() const;

    [[nodiscard]] FileActions& getFileActions() { return m_fileActions; }
    [[nodiscard]] SettingsActions& getSettingsActions() { return m_settingsActions; }
    [[nodiscard]] InspectorSession& getSession() { return m_session; }
    [[nodiscard]] PropertyPane& getProperties() const { return *m_properties; }
    [[nodiscard]] ListPane& getList() const { return *m_list; }
    [[nodiscard]] EntityEditPane& getEditor() const { return *m_editor; }
    /// Brings the object editor to the front.
    void showEditor();
    /// Brings the list to the front, or the properties of one object.
    void showList(bool shown);
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
    void changeEvent(QEvent* event) override;

private:
    void createViews();
    void createStructure();
    void createMessages();
    void createMenus();
    void keepTexts();
    void connectSession();

    void leaveFile();
    void showFile();
    void select(fc::EntityIndex object);
    void listSelection();
    void onModelChanged(std::vector<fc::EntityIndex> const& touched);
    void updateActions();
    void updateTitle();
    void updateFileText();
    void updateTexts();
    void updateNote();
    void updateMessages();
    /// The grid of the tab in front; null where there is none.
    [[nodiscard]] ui::QtPropertyGrid* getVisibleGrid() const;

    std::shared_ptr<ui::QtBackend> m_backend;
    InspectorSession m_session;
    StructureModel* m_structureModel;
    QTreeView* m_structure;
    SearchPanel* m_search;
    PropertyPane* m_properties;
    ListPane* m_list;
    EntityEditPane* m_editor;
    QTabWidget* m_views;
    MessagesPanel* m_messages;
    QDockWidget* m_structureDock;
    QDockWidget* m_messagesDock;
    QLabel* m_note;
    QLabel* m_fileText;
    FileActions m_fileActions;
    EditActions m_editActions;
    ViewActions m_viewActions;
    SettingsActions m_settingsActions;
    LiveTexts m_texts;
    std::size_t m_shownMessages = 0;
};

} // namespace qev::application
