#pragma once

#include "Object/Property.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcRoot;
}

namespace qev::fc::ui::propertyinterface {

class GetProperties;

/// The id under which an entity answers for the heading above its rows.
inline constexpr char FcBaseGroupProperty[] = "FcBaseGroupProperty";
/// The id under which a property answers for itself, where its kind has no id of its own.
inline constexpr char propertyNameId[] = "Name";
/// The row of a set that holds nothing.
inline constexpr char emptyPropertyId[] = "emptyProperty";

// --- Nodes ------------------------------------------------------------------------------------------

/// A leaf of that id for which \p object answers.
/// \throws std::bad_weak_ptr when no shared pointer holds \p object, as all that make nodes here
[[nodiscard]] std::shared_ptr<Property> makeRow(std::string_view id, FcBase const& object);
/// A heading.
[[nodiscard]] std::shared_ptr<Property> makeGroup(std::string_view id, FcBase const& object);
/// A heading whose children are the elements of a list.
[[nodiscard]] std::shared_ptr<Property> makeList(std::string_view id, FcBase const& object);

/// Adds the rows of \p entity to the children of \p parent. Nothing is added for null.
void appendPropertiesOf(std::shared_ptr<FcBase const> const& entity, Property& parent);

/// A heading with the rows of \p nested below it; with none for null.
[[nodiscard]] std::shared_ptr<Property> makeGroup(std::string_view id, FcBase const& object,
                                                  std::shared_ptr<FcBase const> const& nested);
/// A heading of a list with the rows of all \p elements, which are shared pointers to entities.
template <class Elements>
[[nodiscard]] std::shared_ptr<Property> makeList(std::string_view id, FcBase const& object,
                                                 Elements const& elements)
{
    auto list = makeList(id, object);
    for (auto const& element : elements)
        appendPropertiesOf(element, *list);
    return list;
}

/// The node that the visits of the base classes left for the entity's rows; null when there is none.
[[nodiscard]] std::shared_ptr<Property> groupOf(GetProperties const& visitor);

// --- Ids --------------------------------------------------------------------------------------------

/// The position that \p text is in decimal digits and nothing else; nothing for other texts.
[[nodiscard]] std::optional<std::size_t> positionFromText(std::string_view text);

// --- Texts ------------------------------------------------------------------------------------------

/// The class of \p entity without "Ifc". Lives as long as the program.
[[nodiscard]] std::string_view classWithoutPrefix(FcBase const& entity);
/// \p text and, if \p entity has one, a blank and its `Name` in quotes.
[[nodiscard]] std::string withQuotedName(std::string text, core::kernel::FcRoot const& entity);
/// The class of \p entity with its name: IfcWall "W1".
[[nodiscard]] std::string classAndName(core::kernel::FcRoot const& entity);
/// The label of a row that leads to \p referred: \p label, then the localised class in brackets. The label
/// alone without such an entity.
[[nodiscard]] std::string referenceLabel(std::string label, FcBase const* referred);

// --- Relations --------------------------------------------------------------------------------------

/// The entities that are still there, in their order.
template <class T>
[[nodiscard]] std::vector<std::shared_ptr<T>> liveOnes(std::vector<std::weak_ptr<T>> const& entities)
{
    std::vector<std::shared_ptr<T>> result;
    result.reserve(entities.size());
    for (auto const& weak : entities) {
        if (auto entity = weak.lock())
            result.push_back(std::move(entity));
    }
    return result;
}

} // namespace qev::fc::ui::propertyinterface
