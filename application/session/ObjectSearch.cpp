#include "ObjectSearch.h"

#include "Core/String/Fold.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include <algorithm>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

} // namespace

ObjectSearch::ObjectSearch(std::shared_ptr<fc::Data> data, std::string const& text)
    : m_data(std::move(data))
    , m_words(str::foldedWords(text))
{
    if (!m_words.empty())
        m_objects = m_data->indicesFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast);
}

std::vector<ObjectSearch::Hit> ObjectSearch::advance(std::size_t count)
{
    std::vector<Hit> hits;
    auto const end = std::min(m_objects.size(), m_position + count);
    for (; m_position < end && m_hits < hitLimit; ++m_position) {
        auto const object = m_objects[m_position];
        if (m_data->isDeleted(object))
            continue;
        auto label = ObjectLabel::of(*m_data, object);
        if (!matches(label))
            continue;
        hits.push_back({object, std::move(label)});
        ++m_hits;
    }
    return hits;
}

bool ObjectSearch::isFinished() const { return m_position >= m_objects.size() || isCutShort(); }

bool ObjectSearch::matches(ObjectLabel const& label) const
{
    auto const text = str::foldCase(label.name + '\n' + label.className + '\n' + label.globalId);
    return std::all_of(m_words.begin(), m_words.end(),
                       [&](std::string const& word) { return text.find(word) != std::string::npos; });
}

} // namespace qev::application
