#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Core/Id/Guid.h"

namespace qev::fc {

class FcBase;

namespace details {

/// What an entity and the generic property access exchange for one attribute.
template <class EntityPointer>
struct LocalValueBase
{
    /// An optional attribute that is not set.
    struct Unset
    {
        friend bool operator==(Unset, Unset) = default;
    };
    /// 1 true, 0 false, -1 unknown.
    struct LogicalNumber
    {
        std::int64_t number = -1;
        friend bool operator==(LogicalNumber, LogicalNumber) = default;
    };
    /// Three numbers of a free vector, as against those of a point.
    struct VectorNumbers
    {
        std::array<double, 3> numbers{};
        friend bool operator==(VectorNumbers const&, VectorNumbers const&) = default;
    };
    using List = std::vector<LocalValueBase>;
    using Variant = std::variant<std::monostate, Unset, bool, double, std::int64_t, std::string,
                                 LogicalNumber, std::vector<std::int64_t>, Guid, EntityPointer,
                                 std::array<double, 2>, std::array<double, 3>, VectorNumbers, List>;

    Variant value;
    /// The schema name of the type, where a select has to know it.
    std::optional<std::string> typeName;
};

} // namespace details

/// The local value of entities held in shared ownership.
struct LocalValue : details::LocalValueBase<std::shared_ptr<FcBase>>
{
};

} // namespace qev::fc
