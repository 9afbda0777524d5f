#include "Format/Ifc/Schema/PsdDocument.h"

#include <algorithm>

namespace qev::ifc::def {

namespace {

void appendCollapsed(std::string& result, std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    for (char const character : text) {
        if (blanks.find(character) == std::string_view::npos)
            result += character;
        else if (!result.empty() && result.back() != ' ')
            result += ' ';
    }
}

} // namespace

PsdDocument::PsdDocument(std::string_view text, std::filesystem::path const& file, PsdResult& result)
    : m_text(text)
    , m_file(file)
    , m_result(result)
{
    pugi::xml_parse_result const parsed = m_document.load_buffer(text.data(), text.size());
    if (parsed)
        return;
    m_document.reset();
    m_result.errors.push_back({m_file, lineOf(parsed.offset), std::string(parsed.description()) + "."});
}

pugi::xml_node PsdDocument::root() const { return m_document.document_element(); }

void PsdDocument::fail(pugi::xml_node node, std::string message)
{
    m_result.errors.push_back({m_file, lineOf(node.offset_debug()), std::move(message)});
}

std::string_view PsdDocument::nameOf(pugi::xml_node node)
{
    std::string_view const name = node.name();
    std::size_t const colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node PsdDocument::child(pugi::xml_node node, std::string_view name)
{
    return node.find_child([name](pugi::xml_node candidate) { return nameOf(candidate) == name; });
}

std::vector<pugi::xml_node> PsdDocument::children(pugi::xml_node node, std::string_view name)
{
    std::vector<pugi::xml_node> result;
    std::copy_if(node.begin(), node.end(), std::back_inserter(result),
                 [name](pugi::xml_node candidate) { return nameOf(candidate) == name; });
    return result;
}

std::string PsdDocument::textOf(pugi::xml_node node)
{
    std::string result;
    for (pugi::xml_node const part : node) {
        if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata)
            appendCollapsed(result, part.value());
    }
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

std::string PsdDocument::childText(pugi::xml_node node, std::string_view name)
{
    return textOf(child(node, name));
}

std::string PsdDocument::attributeOf(pugi::xml_node node, char const* name)
{
    std::string result;
    appendCollapsed(result, node.attribute(name).value());
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

std::size_t PsdDocument::lineOf(std::ptrdiff_t offset) const
{
    // Unknown, or in a text that had to be converted first.
    if (offset < 0 || static_cast<std::size_t>(offset) > m_text.size())
        return 0;
    return static_cast<std::size_t>(std::count(m_text.begin(), m_text.begin() + offset, '\n')) + 1;
}

} // namespace qev::ifc::def
