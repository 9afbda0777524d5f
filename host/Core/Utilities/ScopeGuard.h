#pragma once

#include <concepts>
#include <utility>

namespace qev {

/// Runs a function when its scope is left, by whichever way.
///
/// The function must not throw.
template <std::invocable Function>
class ScopeGuard
{
public:
    explicit ScopeGuard(Function function)
        : m_function(std::move(function))
    {
    }

    ScopeGuard(ScopeGuard const&) = delete;
    ScopeGuard& operator=(ScopeGuard const&) = delete;

    ~ScopeGuard()
    {
        if (m_active)
            m_function();
    }

    /// The function is not run any more.
    void dismiss() { m_active = false; }

private:
    Function m_function;
    bool m_active = true;
};

} // namespace qev
