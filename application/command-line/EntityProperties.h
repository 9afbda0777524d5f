#pragma once

#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qev::application {

/// One node of an entity's tree of properties, with the answers to all that can be asked of it.
struct EntityProperty
{
    std::string path;
    /// The id by which the entity behind the path answers.
    std::string localId;
    std::string label;
    std::string description;
    bool isGroup = false;
    object::PropertyValue value;
    /// The value as people read it, with its unit.
    std::string text;
    /// The unit of the text; empty without one.
    std::string unit;
    bool isReadOnly = false;
    bool isEmptyAllowed = false;
    /// The values to choose from, as people read them.
    std::vector<std::string> choices;
    fc::ui::propertyinterface::EntityReference reference;
    std::vector<EntityProperty> children;
};

/// The properties of one entity, read and changed by their paths.
class EntityProperties
{
public:
    EntityProperties(std::shared_ptr<fc::Data> data, std::shared_ptr<fc::FcBase> entity);

    /// The tree as it is now.
    [[nodiscard]] std::vector<EntityProperty> tree();

    /// Gives a property the value that \p text means for its kind: a number may carry a unit, the empty text
    /// clears.
    /// \returns why it was refused; nothing when it was taken
    std::optional<std::string> set(std::string const& path, std::string const& text);
    [[nodiscard]] bool hasPath(std::string const& path) const;

private:
    [[nodiscard]] EntityProperty describe(fc::Property const& node,
                                          std::set<object::PropertyId> const& leaves) const;
    [[nodiscard]] std::optional<object::PropertyValue> valueFromText(object::PropertyId const& path,
                                                                     std::string const& text) const;

    std::shared_ptr<fc::ui::propertyinterface::FcPropertyWrapper> m_wrapper;
};

} // namespace qev::application
