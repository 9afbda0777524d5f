#pragma once

#include "BuildingStructure.h"
#include "FoundationClasses/Data.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace qev::application {

/// A class of objects and how many there are of it.
struct ClassCount
{
    /// "IfcWall".
    std::string className;
    std::size_t count = 0;

    friend bool operator==(ClassCount const&, ClassCount const&) = default;
};

/// Which objects are looked at together.
class ObjectScope
{
public:
    explicit ObjectScope(fc::Data const& data)
        : m_data(data)
    {
    }

    /// All objects and types of the file.
    [[nodiscard]] std::vector<fc::EntityIndex> getAll() const;
    /// \p object and all that stands in it or is part of it, however far down; each once.
    [[nodiscard]] std::vector<fc::EntityIndex> getContents(fc::EntityIndex object) const;
    /// The classes of \p objects, by name.
    [[nodiscard]] std::vector<ClassCount> countClasses(std::vector<fc::EntityIndex> const& objects) const;
    /// Those of \p objects that are of the very class; all for an empty name. What is no object and no type
    /// is left out.
    [[nodiscard]] std::vector<fc::EntityIndex> filterByClass(std::vector<fc::EntityIndex> const& objects,
                                                             std::string const& className) const;

private:
    fc::Data const& m_data;
};

} // namespace qev::application
