#include "Model/HandwrittenClasses.h"

#include "Model/InputError.h"

#include <sstream>

namespace qev::schemacompiler {

HandwrittenClasses HandwrittenClasses::parse(std::string_view text, std::string const& file)
{
    HandwrittenClasses result;
    result.file = file;
    std::istringstream lines{std::string(text)};
    unsigned int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        std::istringstream words(line);
        std::string kind;
        if (!(words >> kind) || kind.front() == '#')
            continue;
        std::string name;
        words >> name;
        Member member;
        member.line = number;
        bool const isKnown = kind == "class" || kind == "select" || kind == "member";
        if (!isKnown || name.empty())
            throw InputError(file, number, "expected \"class\", \"select\" or \"member\" and a name");
        if (kind == "class")
            result.classes.emplace(name, number);
        else if (kind == "select")
            result.selects.emplace(name, number);
        else if (words >> member.className >> member.header)
            result.members.emplace(name, member);
        else
            throw InputError(file, number, "expected a class and a header after " + name);
    }
    return result;
}

} // namespace qev::schemacompiler
