#include "ViewActions.h"

#include "ActionMenu.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"

#include <QSettings>
#include <utility>

namespace qev::application {

namespace {

constexpr auto showUnusedKey = "view/showUnused";

} // namespace

ViewActions::ViewActions(PropertyPane& properties, GridFunction getVisibleGrid,
                         std::vector<QDockWidget*> docks)
    : m_properties(properties)
    , m_getVisibleGrid(std::move(getVisibleGrid))
    , m_docks(std::move(docks))
{
}

ViewActions::~ViewActions() = default;

void ViewActions::fill(QMenu& menu, LiveTexts& texts)
{
    m_showUnused = menu.addAction(QString());
    texts.keep(*m_showUnused, "View_ShowUnused");
    m_showUnused->setShortcut(QKeySequence("Ctrl+U"));
    m_showUnused->setCheckable(true);
    m_showUnused->setChecked(m_properties.isUnusedShown());
    connect(m_showUnused, &QAction::toggled, this,
            [this](bool shown) { m_properties.setUnusedShown(shown); });
    menu.addSeparator();
    m_expandAll = appendAction(menu, texts, "View_ExpandAll", QKeySequence("Ctrl+Shift+E"),
                               [this] { setAllFolded(false); });
    m_collapseAll = appendAction(menu, texts, "View_CollapseAll", QKeySequence("Ctrl+Shift+C"),
                                 [this] { setAllFolded(true); });
    menu.addSeparator();
    for (auto* const dock : m_docks)
        menu.addAction(dock->toggleViewAction());
}

void ViewActions::update()
{
    for (auto* const action : {m_expandAll, m_collapseAll})
        action->setEnabled(m_getVisibleGrid() != nullptr);
}

void ViewActions::restore() { m_showUnused->setChecked(QSettings().value(showUnusedKey, true).toBool()); }

void ViewActions::store() const { QSettings().setValue(showUnusedKey, m_showUnused->isChecked()); }

void ViewActions::setAllFolded(bool folded)
{
    if (auto* const grid = m_getVisibleGrid())
        grid->getView().setAllFolded(folded);
}

} // namespace qev::application
