#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "InspectorSession.h"

#include <memory>
#include <QLabel>
#include <QStackedWidget>
#include <QWidget>
#include <string>

namespace qev::fc::ui {
class PropertySetGridControl;
}
namespace qev::ui {
class Dialog;
class QtBackend;
class QtPropertyGrid;
} // namespace qev::ui

namespace qev::application {

/// The properties of the selected object, or a hint what to do while there is none.
class PropertyPane final : public QWidget
{
public:
    PropertyPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session,
                 QWidget* parent = nullptr);
    ~PropertyPane() override;

    /// To be called when another file, or none, is open in the session.
    void showFile();
    /// To be called before the file of the session goes.
    void leaveFile();
    /// Shows the object that is selected in the session, anew if it is shown already.
    void showSelection();

    void setUnusedShown(bool shown);
    [[nodiscard]] bool isUnusedShown() const { return m_isUnusedShown; }

    /// The grid; null while no file is open.
    [[nodiscard]] ui::QtPropertyGrid* getGrid() const;
    /// What stands in place of the grid; empty while the grid is there.
    [[nodiscard]] QString getHint() const;
    /// The property set that the current row belongs to; empty when it belongs to none.
    [[nodiscard]] std::string getCurrentSetName() const;

    /// How the user has divided the grid, kept beyond the file.
    [[nodiscard]] QByteArray getGridLayout() const;
    void setGridLayout(QByteArray const& layout);

    /// Fired when another row has become current.
    EventHandlerContainer<void, void> onCurrentRowChanged;

private:
    void showHint(QString const& hint);
    void createControl();
    /// Shows what the model holds in rows that an input has left behind it.
    void keepRowsTrue();
    /// Lets the rows of all properties of that name show what the model holds.
    void showValues(std::string const& propertyName);

    std::shared_ptr<ui::QtBackend> m_backend;
    InspectorSession& m_session;
    QLabel* m_title;
    QStackedWidget* m_pages;
    QLabel* m_hint;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<fc::ui::PropertySetGridControl> m_control;
    bool m_isUnusedShown = true;
    QByteArray m_gridLayout;
};

} // namespace qev::application
