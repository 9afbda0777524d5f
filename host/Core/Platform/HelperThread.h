#pragma once

#include <future>
#include <system_error>
#include <utility>

namespace qev::platform {

/// Runs \p task on a thread of its own. The future ends with the task: its destructor waits for it.
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
