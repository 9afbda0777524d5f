#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "InspectorSession.h"
#include "LiveTexts.h"
#include "SearchPanel.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QObject>

namespace qev::application {

/// The edit menu: undo and redo, copying, finding objects.
class EditActions final : public QObject
{
public:
    /// Finds in \p search, which stands in \p searchDock. All live longer than the actions.
    EditActions(InspectorSession& session, SearchPanel& search, QDockWidget& searchDock);
    ~EditActions() override;

    void fill(QMenu& menu, LiveTexts& texts);
    /// Enables the actions that can be done at present, and names what would be undone.
    void update();

    /// Fired after an undo or a redo.
    EventHandlerContainer<void, void> onTravelled;

private:
    void travel(bool back);
    static void copyFromFocus();

    InspectorSession& m_session;
    SearchPanel& m_search;
    QDockWidget& m_searchDock;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_find = nullptr;
    QAction* m_findNext = nullptr;
};

} // namespace qev::application
