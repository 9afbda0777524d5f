#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace qev::fc::ui {

/// The attachment of a handler to an event, which ends with its own lifetime.
///
/// Moving it hands the attachment on. The container has to outlive it.
class EventHandlerRAII
{
public:
    /// Adds \p handler, a callable with the arguments of the event alone, to \p container. What it returns
    /// is dropped where the event has no result.
    template <class Owner, class Result, class... Args, class Callable>
    EventHandlerRAII(EventHandlerContainer<Owner, Result, Args...>& container, Callable handler)
    {
        int const id = container.iHandlerAdd(handlerFunction(container, std::move(handler)));
        m_remover = [&container, id] { container.vHandlerRemove(id); };
    }

    EventHandlerRAII(EventHandlerRAII&& other) noexcept
        : m_remover(std::exchange(other.m_remover, nullptr))
    {
    }

    EventHandlerRAII& operator=(EventHandlerRAII&& other) noexcept
    {
        if (this != &other) {
            remove();
            m_remover = std::exchange(other.m_remover, nullptr);
        }
        return *this;
    }

    EventHandlerRAII(EventHandlerRAII const&) = delete;
    EventHandlerRAII& operator=(EventHandlerRAII const&) = delete;

    ~EventHandlerRAII() { remove(); }

private:
    template <class Owner, class Result, class... Args, class Callable>
    static auto handlerFunction(EventHandlerContainer<Owner, Result, Args...> const&, Callable handler)
    {
        if constexpr (std::is_void_v<Owner>)
            return handler;
        else
            return [handler = std::move(handler)](Event<Owner, Result, Args...>&,
                                                  Args... args) mutable -> Result {
                if constexpr (std::is_void_v<Result>)
                    handler(std::forward<Args>(args)...);
                else
                    return handler(std::forward<Args>(args)...);
            };
    }

    void remove()
    {
        if (m_remover)
            m_remover();
    }

    std::function<void()> m_remover;
};

} // namespace qev::fc::ui
