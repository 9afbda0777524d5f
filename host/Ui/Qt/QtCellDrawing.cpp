#include "Ui/Qt/QtCellDrawing.h"

#include <cmath>
#include <QApplication>
#include <QStyleOptionButton>
#include <QWidget>

namespace qev::ui {

namespace {

QStyle::StateFlag toStyleState(CheckState state)
{
    switch (state) {
    case CheckState::Checked:
        return QStyle::State_On;
    case CheckState::Unchecked:
        return QStyle::State_Off;
    case CheckState::Indeterminate:
        return QStyle::State_NoChange;
    }
    return QStyle::State_NoChange;
}

} // namespace

QColor QtCellDrawing::getMuted(QColor const& foreground, QColor const& background, float share)
{
    auto const mix = [share](float front, float back) { return share * front + (1 - share) * back; };
    return QColor::fromRgbF(mix(foreground.redF(), background.redF()),
                            mix(foreground.greenF(), background.greenF()),
                            mix(foreground.blueF(), background.blueF()));
}

QColor QtCellDrawing::getReadableOn(QColor const& background)
{
    auto const linear = [](float part) {
        return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
    };
    auto const luminance = 0.2126F * linear(background.redF()) + 0.7152F * linear(background.greenF()) +
                           0.0722F * linear(background.blueF());
    // Here the contrast to black equals that to white.
    constexpr float turningPoint = 0.179F;
    return luminance > turningPoint ? QColor(Qt::black) : QColor(Qt::white);
}

QColor QtCellDrawing::toQColor(attr::Colour const& colour)
{
    return {colour.red, colour.green, colour.blue, colour.alpha};
}

QStyle& QtCellDrawing::getStyle(QStyleOptionViewItem const& option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

int QtCellDrawing::getMetric(QStyleOptionViewItem const& option, QStyle::PixelMetric metric)
{
    return getStyle(option).pixelMetric(metric, &option, option.widget);
}

int QtCellDrawing::getTextMargin(QStyleOptionViewItem const& option)
{
    return getMetric(option, QStyle::PM_FocusFrameHMargin) + 2;
}

QString QtCellDrawing::getOneLine(QString text)
{
    if (!text.contains(QLatin1Char('\n')))
        return text;
    return text.replace(QLatin1String("\r\n"), QLatin1String(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QString QtCellDrawing::getToolTip(QString const& text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

void QtCellDrawing::paintCheckBox(QPainter& painter, QStyleOptionViewItem const& option, CheckState state,
                                  QRect const& area, bool enabled)
{
    QStyleOptionButton box;
    box.rect = area;
    box.palette = option.palette;
    // Styles frame a box in a darker shade of the window, which cannot be seen where all is dark.
    box.palette.setColor(QPalette::Window, getMuted(box.palette.color(QPalette::Text),
                                                    box.palette.color(QPalette::Base), 0.5F));
    if (enabled)
        box.state = option.state & ~QStyle::State_HasFocus & ~QStyle::State_Selected;
    else
        box.palette.setCurrentColorGroup(QPalette::Disabled);
    box.state.setFlag(QStyle::State_Enabled, enabled);
    box.state |= toStyleState(state);
    getStyle(option).drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, option.widget);
}

} // namespace qev::ui
