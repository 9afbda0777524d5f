#pragma once

#include "HostCoreExport.h"

#include <functional>
#include <string>
#include <string_view>

namespace qev::assert {

/// What one report of a programming error says.
struct AssertInfo
{
    /// 0 for a broken rule, 1 for something that is not implemented.
    unsigned int kind = 0;
    std::string text;
    /// Qualified name of the reporting operation, lambdas included.
    std::string function;
    /// Source path below the include root, without extension.
    std::string path;
    unsigned int line = 0;
};

/// Where programming errors are reported.
///
/// A report never stops the program: the reporting code goes on along its own
/// stated path. While reports are disabled they are dropped; the checks run
/// all the same.
class HOSTCORE_EXPORT Assert
{
public:
    using Handler = std::function<void(AssertInfo const&)>;

    static bool isEnabled();
    static void setEnabled(bool enabled);

    /// Hands \p info to the handler. Without one, the report goes to the standard error stream.
    static void addAssert(AssertInfo const& info);

    /// Replaces the handler and returns the previous one; an empty function means none.
    static Handler setHandler(Handler handler);
};

/// Reports \p text for \p function in \p path, when reports are enabled. The line is that of the caller;
/// GCC, Clang and MSVC all have the builtin, while not each of them has `std::source_location`.
HOSTCORE_EXPORT void report(std::string_view text, std::string_view function, std::string_view path,
                            unsigned int kind = 0, unsigned int line = __builtin_LINE());

} // namespace qev::assert
