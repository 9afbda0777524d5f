#include "ThemeSwitch.h"

#include <QApplication>
#include <QStyle>

namespace qev::application {

namespace {

/// The colours that a palette is made of.
struct Colours
{
    QColor window;
    QColor base;
    QColor button;
    QColor text;
    QColor faint;
    QColor link;
};

Colours const light{QColor(0xf3f3f3), QColor(0xffffff), QColor(0xececec),
                    QColor(0x1b1b1b), QColor(0x767676), QColor(0x0a5cad)};
Colours const dark{QColor(0x2b2b2b), QColor(0x1f1f1f), QColor(0x3a3a3a),
                   QColor(0xececec), QColor(0x9a9a9a), QColor(0x6cb2f7)};

QPalette makePalette(Colours const& colours)
{
    QPalette palette(colours.text, colours.button, colours.button.lighter(150), colours.button.darker(200),
                     colours.button.darker(130), colours.text, colours.text, colours.base, colours.window);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::ToolTipBase, colours.base);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::PlaceholderText, colours.faint);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::Highlight, QColor(0x2a6fb8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.faint);
    return palette;
}

} // namespace

ThemeSwitch::ThemeSwitch()
    : m_styleOfSystem(QApplication::style()->objectName())
    , m_paletteOfSystem(QApplication::palette())
{
}

void ThemeSwitch::set(Theme theme)
{
    if (theme == m_theme)
        return;
    m_theme = theme;
    // Native styles draw in the system's colours whatever the palette says.
    QApplication::setStyle(theme == Theme::OfSystem ? m_styleOfSystem : QStringLiteral("Fusion"));
    QApplication::setPalette(theme == Theme::OfSystem ? m_paletteOfSystem
                                                      : makePalette(theme == Theme::Dark ? dark : light));
}

} // namespace qev::application
