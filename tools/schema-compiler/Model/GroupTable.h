#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace qev::schemacompiler {

/// Which group each class and select belongs to.
///
/// A line at the margin begins a group, "Core.Kernel"; indented lines hold names of the group.
/// Lines that begin with `#` are comments.
struct GroupTable
{
    struct Entry
    {
        std::string group;
        unsigned int line = 0;
    };

    std::vector<std::string> groups;      ///< in the order of the file
    std::map<std::string, Entry> entries; ///< by name

    /// Raises `InputError` for a name without a group and for one that stands twice.
    static GroupTable parse(std::string_view text, std::string const& file);
};

} // namespace qev::schemacompiler
