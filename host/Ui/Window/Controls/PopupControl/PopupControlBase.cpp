#include "Ui/Window/Controls/PopupControl/PopupControlBase.h"

#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"
#include "Ui/Window/Window.h"

namespace qev::ui {

PopupControlBase::PopupControlBase()
    : m_abortHandler(PopupControlAborter::current().onAbort, [this] { return close(); })
    , m_openPopupHandler(PopupControlAborter::current().onGetOpenPopup, [this]() -> std::shared_ptr<Window> {
        auto window = getWindow();
        return window && window->hasInterface() && window->isVisible() ? window : nullptr;
    })
{
}

PopupControlBase::~PopupControlBase() = default;

bool PopupControlBase::close()
{
    fireEvents(closed);
    return true;
}

} // namespace qev::ui
