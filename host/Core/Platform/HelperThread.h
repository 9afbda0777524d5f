#pragma once

#include <future>
#include <system_error>
#include <utility>

namespace qev::platform {

/// Runs \p task on another thread. The destructor of the future waits for its end.
///
/// The future is not valid when the system has no thread to spare: then nothing runs, and the caller does
/// without help.
template <class Task>
[[nodiscard]] std::future<void> startHelper(Task&& task)
{
    try {
        return std::async(std::launch::async, std::forward<Task>(task));
    } catch (std::system_error const&) {
        return {};
    }
}

} // namespace qev::platform
