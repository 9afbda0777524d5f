#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"

#include "Ui/Window/Window.h"

#include <algorithm>

namespace qev::ui {

namespace {

template <class Container>
bool hasHandler(Container const& container, int id)
{
    auto const& handlers = *container.handlers();
    return std::any_of(handlers.begin(), handlers.end(),
                       [id](auto const& record) { return record.id == id; });
}

} // namespace

PopupControlAborter& PopupControlAborter::current()
{
    static PopupControlAborter instance;
    return instance;
}

bool PopupControlAborter::abort() const
{
    if (onAbort.handlerCount() == 0)
        return false;
    // A popup that closes may end, itself or another one with it, and take its handler out of the list.
    auto const popups = *onAbort.handlers();
    bool hasClosed = false;
    for (auto const& popup : popups)
        if (hasHandler(onAbort, popup.id) && (*popup.function)())
            hasClosed = true;
    return hasClosed;
}

std::shared_ptr<Window> PopupControlAborter::getOpenPopup() const
{
    if (onGetOpenPopup.handlerCount() == 0)
        return nullptr;
    for (auto const& popup : *onGetOpenPopup.handlers())
        if (auto window = (*popup.function)())
            return window;
    return nullptr;
}

} // namespace qev::ui
