#pragma once

#include <functional>
#include <QAction>
#include <string>
#include <vector>

namespace qev::application {

/// Texts on the screen that follow the language of the program.
///
/// What they stand on lives at least as long as this.
class LiveTexts
{
public:
    /// Sets a text by \p set, now and whenever the language changes.
    void keep(std::function<void()> set);
    /// The same for the text of an action, by its key.
    void keep(QAction& action, std::string key);

    /// To be called when the language has changed.
    void renew() const;

private:
    std::vector<std::function<void()>> m_setters;
};

} // namespace qev::application
