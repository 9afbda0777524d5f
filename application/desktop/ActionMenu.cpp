#include "ActionMenu.h"

#include <utility>

namespace qev::application {

QAction* appendAction(QMenu& menu, QString const& text, QKeySequence const& shortcut,
                      std::function<void()> action)
{
    auto* const entry = menu.addAction(text);
    entry->setShortcut(shortcut);
    QObject::connect(entry, &QAction::triggered, entry, [action = std::move(action)] { action(); });
    return entry;
}

QAction* appendAction(QMenu& menu, LiveTexts& texts, std::string key, QKeySequence const& shortcut,
                      std::function<void()> action)
{
    auto* const entry = appendAction(menu, QString(), shortcut, std::move(action));
    texts.keep(*entry, std::move(key));
    return entry;
}

} // namespace qev::application
