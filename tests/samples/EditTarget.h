#pragma once

#include "HeadlessGrid.h"
#include "reference-reader/ReferenceReader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qev::test::samples {

/// A value of a file that a user can change in the grid, or one that is still missing there.
struct EditTarget
{
    enum class Kind
    {
        Label,
        Number,
        Boolean,
        Logical,
        Enumeration,
        Length,
        Area,
        Volume,
        Count,
        Weight,
        Time
    };

    Kind kind = Kind::Label;
    std::uint64_t object = 0;
    std::string setName;
    std::string propertyName;
    /// The records of set and property; 0 for a value that is missing.
    std::uint64_t set = 0;
    std::uint64_t property = 0;
    /// Another value than the present one.
    std::string newText;

    [[nodiscard]] bool isQuantity() const { return kind >= Kind::Length; }
    [[nodiscard]] std::string describe() const;
};

/// The row of a target; none when it is not shown.
[[nodiscard]] std::optional<application::GridGroup::Row> findRow(application::HeadlessGrid const& session,
                                                                 EditTarget const& target);

/// Values of an object that can be changed, at most one of each kind that is not in \p done.
///
/// The object is shown when it has a value of such a kind. No two targets share a set.
[[nodiscard]] std::vector<EditTarget> findTargets(application::HeadlessGrid& session,
                                                  reference::ReferenceReader const& reader,
                                                  std::shared_ptr<fc::FcBase> const& entity,
                                                  std::uint64_t object,
                                                  std::set<EditTarget::Kind> const& done);

/// Values of sets that the object does not have, one of each kind and each in a set of its own. The object
/// is shown already, with its unused properties.
[[nodiscard]] std::vector<EditTarget> findMissing(application::HeadlessGrid const& session,
                                                  reference::ReferenceReader const& reader,
                                                  std::uint64_t object,
                                                  std::set<EditTarget::Kind> const& done);

/// All groups and rows with their values, line by line.
[[nodiscard]] std::string describe(application::HeadlessGrid const& session);

} // namespace qev::test::samples
