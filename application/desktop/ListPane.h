#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "InspectorSession.h"
#include "ListLayout.h"
#include "ListQuestions.h"
#include "LiveTexts.h"
#include "ObjectScope.h"

#include <memory>
#include <optional>
#include <QComboBox>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>
#include <QWidget>
#include <string>
#include <vector>

namespace qev::fc::ui {
class PropertySetListControl;
}
namespace qev::ui {
class Dialog;
class QtBackend;
class QtListControl;
} // namespace qev::ui

namespace qev::application {

class IdentityColumns;
class UsedColumns;

/// Many objects as a table: a row for each, a column for each property that they have in common.
///
/// While the pane is not seen, it only notes what it is to show.
class ListPane final : public QWidget
{
public:
    /// Which objects are listed.
    enum class Scope
    {
        Selection,
        /// What stands in the selected object, or is part of it.
        Contents,
        File,
        SearchHits,
    };

    ListPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session, QWidget* parent = nullptr);
    ~ListPane() override;

    void setQuestions(ListQuestions questions) { m_questions = std::move(questions); }

    /// To be called when another file, or none, is open in the session.
    void showFile();
    /// To be called before the file of the session goes.
    void leaveFile();
    void setSelection(std::vector<fc::EntityIndex> objects);
    void setSearchHits(std::vector<fc::EntityIndex> objects);
    /// The values of the model have changed.
    void showValues();

    void setScope(Scope scope);
    [[nodiscard]] Scope getScope() const;
    /// Lists only objects of the very class; all for an empty name.
    void setClass(std::string const& className);
    [[nodiscard]] std::string getClass() const;

    /// The list; null while no file is open.
    [[nodiscard]] ui::QtListControl* getList() const;
    /// The control behind it; null while no file is open.
    [[nodiscard]] fc::ui::PropertySetListControl* getControl() const { return m_control.get(); }
    [[nodiscard]] std::vector<fc::EntityIndex> const& getObjects() const { return m_objects; }

    [[nodiscard]] ListLayout getLayout() const;
    void setLayout(ListLayout const& layout);
    /// Lets the user choose columns by their sets.
    void chooseColumns();
    /// Writes the rows and columns that are shown: a workbook for a name that ends in ".xlsx", else a table
    /// with commas. False, after telling why, when that failed.
    bool exportTo(QString const& path);
    /// Reads a table with commas, shows what would change and, if the user agrees, changes it. False when
    /// nothing was changed.
    bool importFrom(QString const& path);

    /// Fired with the object of a row that was opened.
    EventHandlerContainer<void, void, fc::EntityIndex> onActivated;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createToolBar();
    void createControl();
    void fillLayoutMenu();
    void askForLayoutName();
    void noteChange();
    /// Lists the objects that are to be listed.
    void update();
    void fillClasses(std::vector<fc::EntityIndex> const& objects);
    [[nodiscard]] std::vector<fc::EntityIndex> findObjects() const;
    void storeArrangement();
    void restoreArrangement();
    void arrangeAsAtFirst();
    [[nodiscard]] QString getArrangementKey() const;
    [[nodiscard]] std::vector<std::size_t> getShownRows() const;

    std::shared_ptr<ui::QtBackend> m_backend;
    InspectorSession& m_session;
    ListQuestions m_questions;
    LiveTexts m_texts;
    QToolBar* m_toolBar;
    QComboBox* m_scope;
    QComboBox* m_class;
    QMenu* m_layoutMenu;
    QStackedWidget* m_pages;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<IdentityColumns> m_identity;
    std::shared_ptr<UsedColumns> m_used;
    std::shared_ptr<fc::ui::PropertySetListControl> m_control;
    std::vector<fc::EntityIndex> m_selection;
    std::vector<fc::EntityIndex> m_hits;
    std::vector<fc::EntityIndex> m_objects;
    /// How the list of the class was arranged before the user did anything to it.
    ListLayout m_firstLayout;
    std::optional<std::string> m_arrangedClass;
    bool m_isArrangedByUser = false;
    bool m_isStale = true;
};

} // namespace qev::application
