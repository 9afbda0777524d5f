#pragma once

#include <map>
#include <string>
#include <string_view>

namespace qev::schemacompiler {

/// Which classes have a part written by hand.
///
/// `class FcRoot` says that FcRoot is written by hand and derives from the generated FcRootAttributes;
/// `select FcAxis2Placement` the same of a select and FcAxis2PlacementMembers;
/// `member FcPropertySet.HasProperties CLASS HEADER` that a member of an attribute has a class of its own.
struct HandwrittenClasses
{
    struct Member
    {
        std::string className;
        std::string header;
        unsigned int line = 0;
    };

    std::string file;
    std::map<std::string, unsigned int> classes; ///< by C++ name, with the line
    std::map<std::string, unsigned int> selects;
    std::map<std::string, Member> members; ///< by "FcPropertySet.HasProperties"

    /// Raises `InputError` for a line of another form.
    static HandwrittenClasses parse(std::string_view text, std::string const& file);
};

} // namespace qev::schemacompiler
