#include "Format/Ifc/Schema/Xml/Element.h"

#include <algorithm>

namespace qev::xml {

struct Element::Node
{
    std::string name;
    std::string text;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<Element> children;
};

namespace {

std::string escaped(std::string_view text)
{
    std::string result;
    for (char const character : text) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

} // namespace

Element::Element(std::string_view name)
    : m_node(std::make_shared<Node>())
{
    m_node->name = name;
}

std::string const& Element::name() const { return m_node->name; }

std::string const& Element::text() const { return m_node->text; }

std::vector<Element> const& Element::children() const { return m_node->children; }

std::string Element::attribute(std::string_view attributeName) const
{
    for (auto const& [name, value] : m_node->attributes) {
        if (name == attributeName)
            return value;
    }
    return {};
}

Element Element::addChild(std::string_view childName, std::string_view childText)
{
    Element child(childName);
    child.setText(childText);
    m_node->children.push_back(child);
    return child;
}

void Element::setAttribute(std::string_view attributeName, std::string_view value)
{
    auto& attributes = m_node->attributes;
    auto const found = std::find_if(attributes.begin(), attributes.end(), [attributeName](auto const& known) {
        return known.first == attributeName;
    });
    if (found == attributes.end())
        attributes.emplace_back(attributeName, value);
    else
        found->second = value;
}

void Element::setText(std::string_view text) { m_node->text = text; }

std::string Element::toString() const
{
    std::string output;
    append(output, 0);
    return output;
}

void Element::append(std::string& output, std::size_t level) const
{
    std::string const indent(2 * level, ' ');
    output += indent + "<" + m_node->name;
    for (auto const& [name, value] : m_node->attributes)
        output += " " + name + "=\"" + escaped(value) + "\"";
    if (m_node->text.empty() && m_node->children.empty()) {
        output += " />\n";
        return;
    }
    output += ">" + escaped(m_node->text);
    if (!m_node->children.empty()) {
        output += "\n";
        for (Element const& child : m_node->children)
            child.append(output, level + 1);
        output += indent;
    }
    output += "</" + m_node->name + ">\n";
}

} // namespace qev::xml
