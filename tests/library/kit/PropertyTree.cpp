#include "library/kit/PropertyTree.h"

namespace qev::test {

namespace {

void append(PropertyNodes const& nodes, std::size_t depth, std::string& text)
{
    for (auto const& node : nodes) {
        text += std::string(2 * depth, ' ') + node->id.text();
        if (node->mappedId)
            text += " = " + node->mappedId->text();
        if (node->isGroup)
            text += " [group]";
        if (node->isList)
            text += " [list]";
        if (!node->standalone)
            text += " [part]";
        text += '\n';
        append(node->children, depth + 1, text);
    }
}

} // namespace

std::string treeText(PropertyNodes const& nodes)
{
    std::string text;
    append(nodes, 0, text);
    return text;
}

std::vector<std::string> childIds(fc::Property const& node)
{
    std::vector<std::string> ids;
    for (auto const& child : node.children)
        ids.push_back(child->id.text());
    return ids;
}

std::shared_ptr<fc::Property> nodeAt(PropertyNodes const& nodes, std::string_view path)
{
    auto const end = path.find('/');
    for (auto const& node : nodes) {
        if (node->id.text() == path.substr(0, end))
            return end == std::string_view::npos ? node : nodeAt(node->children, path.substr(end + 1));
    }
    return nullptr;
}

} // namespace qev::test
