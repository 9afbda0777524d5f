#pragma once

#include "FoundationClasses/Data.h"

#include <vector>

namespace qev::application {

/// The tree of a building: the project, its sites, buildings, storeys and spaces, and what stands in them,
/// with the parts of each.
///
/// It keeps nothing; each answer is read from the model's relations. Relations of broken files may go
/// round in circles: whoever walks down stops at an object that was passed already.
class BuildingStructure
{
public:
    explicit BuildingStructure(fc::Data const& data)
        : m_data(data)
    {
    }

    /// The projects; in a file without any, the spatial elements that are part of nothing.
    [[nodiscard]] std::vector<fc::EntityIndex> getRoots() const;
    /// What is directly below: parts of the structure first, then by class and name. Each object once.
    [[nodiscard]] std::vector<fc::EntityIndex> getChildren(fc::EntityIndex object) const;
    [[nodiscard]] bool hasChildren(fc::EntityIndex object) const;
    /// What the object is part of, stands in or is nested in; `noEntity` when it is nothing of that.
    [[nodiscard]] fc::EntityIndex getParent(fc::EntityIndex object) const;
    /// From a root down to the object; only the object itself when it has no place in the tree.
    [[nodiscard]] std::vector<fc::EntityIndex> getPath(fc::EntityIndex object) const;

private:
    void sortForPeople(std::vector<fc::EntityIndex>& objects) const;

    fc::Data const& m_data;
};

} // namespace qev::application
