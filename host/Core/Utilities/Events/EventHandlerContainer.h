#pragma once

#include "Core/Assert/Assert.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace qev {

template <class Owner, class Result = void, class... Args>
class EventHandlerContainer;

/// One running event of a container whose owner is a class.
///
/// Lives on the stack of whoever fires the event. A handler passes the event on
/// by asking `container.pEventHandlerFromInd(event)` for the handler before it.
template <class Owner, class Result, class... Args>
struct Event
{
    EventHandlerContainer<Owner, Result, Args...>& container;
    /// How many handlers are still to run.
    std::size_t nextIndex = 0;
};

namespace details {

template <class Owner, class Result, class... Args>
struct EventHandlerFunction
{
    using Type = std::function<Result(Event<Owner, Result, Args...>&, Args...)>;
};

template <class Result, class... Args>
struct EventHandlerFunction<void, Result, Args...>
{
    using Type = std::function<Result(Args...)>;
};

} // namespace details

/// What both flavours of `EventHandlerContainer` share: adding and removing handlers by id. \p Derived is the
/// container itself.
///
/// A container is not copied or moved: attachments refer to it. Use from the toolkit's thread.
template <class Derived, class Owner, class Result, class... Args>
class EventHandlerContainerCommon
{
public:
    using Function = typename details::EventHandlerFunction<Owner, Result, Args...>::Type;

    struct HandlerRecord
    {
        int id = 0;
        /// Shared, so that a handler may remove itself or add another one while it runs.
        std::shared_ptr<Function const> function;
    };

    EventHandlerContainerCommon() = default;
    EventHandlerContainerCommon(EventHandlerContainerCommon const&) = delete;
    EventHandlerContainerCommon& operator=(EventHandlerContainerCommon const&) = delete;

    /// Appends \p function. \returns its id: the first is 1, and none is used again.
    int iHandlerAdd(Function function)
    {
        if (!m_handlers)
            m_handlers = std::make_unique<std::vector<HandlerRecord>>();
        ++m_lastId;
        m_handlers->push_back({m_lastId, std::make_shared<Function const>(std::move(function))});
        return m_lastId;
    }

    /// Removes the handler \p id; the others keep their order. An unknown id is reported, unless the
    /// container never had a handler.
    void vHandlerRemove(int id)
    {
        if (!m_handlers)
            return;
        auto const record = std::find_if(m_handlers->begin(), m_handlers->end(),
                                         [id](HandlerRecord const& candidate) { return candidate.id == id; });
        if (record == m_handlers->end()) {
            assert::report("Event handler doesn't exist",
                           "qev::EventHandlerContainer<Owner,Result,Args...>::vHandlerRemove",
                           "Core/Utilities/Events/EventHandlerContainer");
            return;
        }
        m_handlers->erase(record);
    }

    [[nodiscard]] std::size_t handlerCount() const { return m_handlers ? m_handlers->size() : 0; }

    /// The handlers from the first added to the last; null until the first one comes.
    [[nodiscard]] std::vector<HandlerRecord> const* handlers() const { return m_handlers.get(); }

protected:
    ~EventHandlerContainerCommon() = default;

private:
    int m_lastId = 0;
    std::unique_ptr<std::vector<HandlerRecord>> m_handlers;
};

/// Handlers that receive the running event: the last added one runs, and decides by
/// `pEventHandlerFromInd` whether the one before it runs too.
template <class Owner, class Result, class... Args>
class EventHandlerContainer final
    : public EventHandlerContainerCommon<EventHandlerContainer<Owner, Result, Args...>, Owner, Result,
                                         Args...>
{
public:
    using typename EventHandlerContainerCommon<EventHandlerContainer, Owner, Result, Args...>::Function;

    /// The next handler of \p event, or null when none is left.
    ///
    /// The result stays callable when its record is removed meanwhile. An index outside of
    /// the list, left by handlers removed during the event, is reported and gives null.
    std::shared_ptr<Function const> pEventHandlerFromInd(Event<Owner, Result, Args...>& event) const
    {
        if (event.nextIndex == 0)
            return nullptr;
        --event.nextIndex;
        if (event.nextIndex >= this->handlerCount()) {
            assert::report("Index out of range",
                           "qev::EventHandlerContainer<Owner,Result,Args...>::pEventHandlerFromInd",
                           "Core/Utilities/Events/EventHandlerContainer");
            return nullptr;
        }
        return (*this->handlers())[event.nextIndex].function;
    }
};

/// Handlers that receive the arguments alone. The owner of the container walks them, from the first
/// added to the last; none may be removed during the walk.
template <class Result, class... Args>
class EventHandlerContainer<void, Result, Args...> final
    : public EventHandlerContainerCommon<EventHandlerContainer<void, Result, Args...>, void, Result, Args...>
{
};

/// Fires an event on \p container: runs the last added handler.
///
/// \returns the handler's result; a default \p Result when there is no handler. A caller to whom
/// that makes a difference asks `handlerCount()` first.
template <class Owner, class Result, class... Args>
requires(!std::is_void_v<Owner>) Result
    fireEvent(EventHandlerContainer<Owner, Result, Args...>& container, std::type_identity_t<Args>... args)
{
    Event<Owner, Result, Args...> event{container, container.handlerCount()};
    auto const handler = container.pEventHandlerFromInd(event);
    if (!handler)
        return Result();
    return (*handler)(event, std::forward<Args>(args)...);
}

/// Passes \p event on to the handler before the running one.
///
/// \returns its result; a default \p Result when no handler is left.
template <class Owner, class Result, class... Args>
Result forwardEvent(Event<Owner, Result, Args...>& event, std::type_identity_t<Args>... args)
{
    auto const handler = event.container.pEventHandlerFromInd(event);
    if (!handler)
        return Result();
    return (*handler)(event, std::forward<Args>(args)...);
}

/// Runs all handlers of \p container, from the first added to the last; their results are dropped.
///
/// The last handler may destroy the container.
template <class Result, class... Args>
void fireEvents(EventHandlerContainer<void, Result, Args...> const& container,
                std::type_identity_t<Args>... args)
{
    if (container.handlerCount() == 0)
        return;
    auto const handlers = *container.handlers();
    for (auto const& record : handlers)
        (*record.function)(args...);
}

} // namespace qev
