#pragma once

#include "LiveTexts.h"
#include "PropertyPane.h"

#include <functional>
#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QObject>
#include <vector>

namespace qev::application {

/// The view menu: which rows and which panels are seen.
class ViewActions final : public QObject
{
public:
    /// Gives the grid in front; null while there is none.
    using GridFunction = std::function<ui::QtPropertyGrid*()>;

    /// Acts on \p properties and on the grid in front, and shows and hides \p docks. All live longer than the
    /// actions.
    ViewActions(PropertyPane& properties, GridFunction getVisibleGrid, std::vector<QDockWidget*> docks);
    ~ViewActions() override;

    void fill(QMenu& menu, LiveTexts& texts);
    /// Enables the actions that can be done at present.
    void update();

    /// Takes the choices of the last run, and keeps those of this one.
    void restore();
    void store() const;

private:
    void setAllFolded(bool folded);

    PropertyPane& m_properties;
    GridFunction m_getVisibleGrid;
    std::vector<QDockWidget*> m_docks;
    QAction* m_showUnused = nullptr;
    QAction* m_expandAll = nullptr;
    QAction* m_collapseAll = nullptr;
};

} // namespace qev::application
