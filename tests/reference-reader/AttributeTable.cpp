#include "reference-reader/AttributeTable.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace qev::test::reference {
namespace {

std::string capitals(std::string text)
{
    for (char& character : text) {
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    }
    return text;
}

std::string rest(std::istringstream& words)
{
    std::string text;
    std::getline(words >> std::ws, text);
    return text;
}

std::string tableFor(std::string const& schemaName)
{
    for (char const* const own : {"IFC4X1", "IFC4X2", "IFC4X3_TC1"}) {
        if (schemaName == own)
            return own;
    }
    return schemaName.starts_with("IFC4X")  ? "IFC4X3_ADD2"
           : schemaName.starts_with("IFC4") ? "IFC4"
                                            : "IFC2X3";
}

} // namespace

AttributeTable AttributeTable::fromText(std::string_view text)
{
    AttributeTable table;
    Entity* entity = nullptr;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string first;
        std::string name;
        std::string mark;
        words >> first;
        if (first.empty() || first == "#")
            continue;
        if (line.starts_with("  ")) {
            words >> mark;
            if (entity != nullptr && first != "derived" && first != "inverse")
                entity->own.push_back({first, rest(words)});
            continue;
        }
        if (first == "abstract")
            words >> first;
        words >> name >> mark;
        if (first == "type")
            table.m_types[capitals(name)] = rest(words);
        if (first == "entity") {
            entity = &table.m_entities[capitals(name)];
            entity->supertype = capitals(rest(words));
        }
    }
    return table;
}

AttributeTable AttributeTable::forSchema(std::string const& schemaName, std::string const& folder)
{
    std::string const path = folder + "/" + tableFor(capitals(schemaName)) + ".schema";
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::string const text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return fromText(text);
}

std::vector<AttributeTable::Attribute> AttributeTable::attributes(std::string const& className) const
{
    auto const found = m_entities.find(className);
    if (found == m_entities.end())
        return {};
    std::vector<Attribute> all = attributes(found->second.supertype);
    all.insert(all.end(), found->second.own.begin(), found->second.own.end());
    return all;
}

bool AttributeTable::isA(std::string const& className, std::string_view base) const
{
    if (className == base)
        return true;
    auto const found = m_entities.find(className);
    return found != m_entities.end() && isA(found->second.supertype, base);
}

std::string AttributeTable::measureOf(std::string const& type) const
{
    std::string const name = capitals(type);
    auto const found = m_types.find(name);
    bool const otherName = found != m_types.end() && found->second.starts_with("Ifc");
    bool const measure = name.ends_with("MEASURE");
    return otherName && !measure ? measureOf(found->second) : name;
}

} // namespace qev::test::reference
