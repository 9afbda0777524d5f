#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "EntityEditSession.h"
#include "InspectorSession.h"

#include <functional>
#include <memory>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QUrl>
#include <QVariantMap>
#include <QWidget>
#include <vector>

namespace qev::ui {
class QtBackend;
class QtPropertyGrid;
} // namespace qev::ui

namespace qev::application {

/// The object editor over the selected objects: all their properties as a tree, with the buttons that add,
/// delete and edit. It reads the model only while it can be seen.
class EntityEditPane final : public QWidget
{
public:
    using OpenFunction = std::function<void(QUrl const& address)>;

    EntityEditPane(std::shared_ptr<ui::QtBackend> backend, InspectorSession& session,
                   QWidget* parent = nullptr);
    ~EntityEditPane() override;

    /// To be called when another file, or none, is open in the session.
    void showFile();
    /// To be called before the file of the session goes.
    void leaveFile();
    /// Shows these objects together.
    void setObjects(std::vector<fc::EntityIndex> objects);
    /// Shows what the model says now.
    void refresh();

    /// The sizes that the user gave the popups, by their ids.
    [[nodiscard]] QVariantMap getPopupSizes() const;
    /// Gives the popups the sizes of `getPopupSizes`, of this run or another.
    void setPopupSizes(QVariantMap const& sizes);

    /// Who opens files and addresses; the desktop unless set.
    void setOpenFunction(OpenFunction function) { m_open = std::move(function); }

    /// The editor; null while no file is open.
    [[nodiscard]] EntityEditSession* getEditSession() const { return m_editSession.get(); }
    /// The grid; null while no file is open.
    [[nodiscard]] ui::QtPropertyGrid* getGrid() const;
    /// What stands in place of the grid; empty while the grid is there.
    [[nodiscard]] QString getHint() const;
    /// The button that opens the document of the current row.
    [[nodiscard]] QPushButton& getOpenButton() const { return *m_openButton; }

    /// Fired with the GlobalId of an object that the user wants to see.
    EventHandlerContainer<void, void, std::string const&> onGoTo;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createSession();
    void showObjects();
    void showHint(QString const& hint);
    void updateReference();
    void open(std::string const& reference);

    std::shared_ptr<ui::QtBackend> m_backend;
    InspectorSession& m_session;
    QLabel* m_title;
    QPushButton* m_openButton;
    QStackedWidget* m_pages;
    QLabel* m_hint;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::unique_ptr<EntityEditSession> m_editSession;
    std::vector<fc::EntityIndex> m_objects;
    OpenFunction m_open;
    bool m_isStale = true;
    QByteArray m_gridLayout;
};

} // namespace qev::application
