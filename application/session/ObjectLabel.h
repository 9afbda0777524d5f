#pragma once

#include "FoundationClasses/Data.h"

#include <string>

namespace qev::application {

/// How an object is named to people.
struct ObjectLabel
{
    /// The object's own name; empty for many.
    std::string name;
    /// "IfcWall".
    std::string className;
    std::string globalId;

    [[nodiscard]] static ObjectLabel of(fc::FcBase const& entity);
    /// The label of the entity at a place; empty when there is none.
    [[nodiscard]] static ObjectLabel of(fc::Data const& data, fc::EntityIndex index);
    /// The name, or the class for an object without one.
    [[nodiscard]] std::string const& getTitle() const { return name.empty() ? className : name; }
    /// All of it on one line, for messages.
    [[nodiscard]] std::string getDescription() const
    {
        return globalId + " " + className + " '" + name + "'";
    }
};

} // namespace qev::application
