#include "Classification/ClassificationSystem.h"

#include "Core/String/Fold.h"

#include <algorithm>
#include <set>
#include <utility>

namespace qev::classification {

ClassificationSystem::ClassificationSystem(ClassificationSystemInfo info,
                                           std::vector<ClassificationCode> codes)
    : m_info(std::move(info))
    , m_codes(std::move(codes))
{
    for (std::size_t i = 0; i < m_codes.size(); ++i)
        m_places.emplace(m_codes[i].code, i);
    cutCircles();
    for (auto const& code : m_codes)
        m_children[code.parent].push_back(code.code);
}

ClassificationSystem::~ClassificationSystem() = default;

void ClassificationSystem::cutCircles()
{
    for (auto& code : m_codes) {
        std::set<std::string_view> seen{code.code};
        auto const* above = find(code.parent);
        while (above && seen.insert(above->code).second)
            above = find(above->parent);
        // It may also stand below a circle that others make.
        bool const isCircle = above && above->code == code.code;
        if (isCircle || !find(code.parent))
            code.parent.clear();
    }
}

std::string ClassificationSystem::getTitle(std::string_view code) const
{
    auto const* const found = find(code);
    return found ? found->title : std::string();
}

ClassificationCode const* ClassificationSystem::find(std::string_view code) const
{
    auto const place = m_places.find(code);
    return place == m_places.end() ? nullptr : &m_codes[place->second];
}

std::vector<std::string> ClassificationSystem::getChildren(std::string_view parent) const
{
    auto const children = m_children.find(parent);
    return children == m_children.end() ? std::vector<std::string>() : children->second;
}

std::vector<std::string> ClassificationSystem::getPath(std::string_view code) const
{
    std::vector<std::string> path;
    for (auto const* step = find(code); step; step = find(step->parent))
        path.push_back(step->code);
    std::reverse(path.begin(), path.end());
    return path;
}

std::vector<std::string> ClassificationSystem::search(std::string_view text) const
{
    auto const words = str::foldedWords(text);
    std::vector<std::string> found;
    for (auto const& code : m_codes) {
        auto const folded = str::foldCase(code.code + '\n' + code.title + '\n' + code.description);
        if (std::all_of(words.begin(), words.end(), [&folded](std::string const& word) {
                return folded.find(word) != std::string::npos;
            }))
            found.push_back(code.code);
    }
    return found;
}

} // namespace qev::classification
