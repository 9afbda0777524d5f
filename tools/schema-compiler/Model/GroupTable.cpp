#include "Model/GroupTable.h"

#include "Model/InputError.h"

#include <algorithm>
#include <sstream>

namespace qev::schemacompiler {

namespace {

bool isBlank(char character) { return character == ' ' || character == '\t'; }

void checkGroupName(std::string const& name, std::string const& file, unsigned int line)
{
    auto const dot = name.find('.');
    if (dot == std::string::npos || dot == 0 || dot + 1 == name.size() ||
        name.find_first_of(" \t") != std::string::npos)
        throw InputError(file, line, "expected a group such as \"Core.Kernel\", found \"" + name + "\"");
}

} // namespace

GroupTable GroupTable::parse(std::string_view text, std::string const& file)
{
    GroupTable table;
    std::istringstream lines{std::string(text)};
    unsigned int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.find_first_not_of(" \t\r") == std::string::npos || line.front() == '#')
            continue;
        if (!isBlank(line.front())) {
            line.erase(line.find_last_not_of(" \t\r") + 1);
            checkGroupName(line, file, number);
            if (std::find(table.groups.begin(), table.groups.end(), line) != table.groups.end())
                throw InputError(file, number, "the group " + line + " stands twice");
            table.groups.push_back(line);
            continue;
        }
        if (table.groups.empty())
            throw InputError(file, number, "expected a group before the first name");
        std::istringstream names(line);
        for (std::string name; names >> name;) {
            if (!table.entries.emplace(name, Entry{table.groups.back(), number}).second)
                throw InputError(file, number, name + " stands twice");
        }
    }
    return table;
}

} // namespace qev::schemacompiler
