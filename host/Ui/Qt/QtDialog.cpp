#include "Ui/Qt/QtDialog.h"

#include "Ui/Window/Details/WindowInterfaceFactory.h"
#include "Ui/Window/Window.h"

namespace qev::ui {

QtDialog::QtDialog(QWidget* parent)
    : QWidget(parent)
{
}

QtDialog::~QtDialog() = default;

void QtDialog::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    auto const window = details::WindowInterfaceFactory::pWindowFromHandle_(WindowHandle(this));
    if (window && window->hasInterface())
        window->onSizeChanged(window->getClientAreaSize());
}

} // namespace qev::ui
