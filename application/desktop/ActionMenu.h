#pragma once

#include "LiveTexts.h"

#include <functional>
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <string>

namespace qev::application {

/// Appends an entry to \p menu that does \p action. The menu owns it.
QAction* appendAction(QMenu& menu, QString const& text, QKeySequence const& shortcut,
                      std::function<void()> action);

/// The same with the text of \p key in the language of the program, whenever that changes.
QAction* appendAction(QMenu& menu, LiveTexts& texts, std::string key, QKeySequence const& shortcut,
                      std::function<void()> action);

} // namespace qev::application
