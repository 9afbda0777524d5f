#pragma once

#include <functional>
#include <QAction>
#include <QKeySequence>
#include <QMenu>

namespace qev::application {

/// Appends an entry to \p menu that does \p action. The menu owns it.
QAction* appendAction(QMenu& menu, QString const& text, QKeySequence const& shortcut,
                      std::function<void()> action);

} // namespace qev::application
