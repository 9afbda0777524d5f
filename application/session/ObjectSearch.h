#pragma once

#include "FoundationClasses/Data.h"
#include "ObjectLabel.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace qev::application {

/// A search for objects and types by name, class or GlobalId, to be carried on bit by bit, so that a
/// large model keeps nobody waiting.
///
/// Each word of the text has to be found somewhere in the name, the class or the GlobalId; the case of
/// letters does not count.
class ObjectSearch
{
public:
    struct Hit
    {
        fc::EntityIndex object = fc::noEntity;
        ObjectLabel label;
    };

    /// No more hits than this are collected.
    static constexpr std::size_t hitLimit = 1000;

    ObjectSearch(std::shared_ptr<fc::Data> data, std::string const& text);

    /// Looks at up to \p count more objects. \returns what was found among them.
    std::vector<Hit> advance(std::size_t count);
    [[nodiscard]] bool isFinished() const;
    /// There were more hits than are collected.
    [[nodiscard]] bool isCutShort() const { return m_hits >= hitLimit; }

private:
    [[nodiscard]] bool matches(ObjectLabel const& label) const;

    std::shared_ptr<fc::Data> m_data;
    std::vector<std::string> m_words;
    std::vector<fc::EntityIndex> m_objects;
    std::size_t m_position = 0;
    std::size_t m_hits = 0;
};

} // namespace qev::application
