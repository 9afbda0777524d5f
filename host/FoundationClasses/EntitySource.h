#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace qev::fc {

class Data;
class FcBase;

/// Where the entities of a model come from: a file that was indexed and whose records become
/// objects when something first asks for them. Indices count its records from 0.
class HOSTFOUNDATIONCLASSES_EXPORT EntitySource
{
public:
    virtual ~EntitySource();

    [[nodiscard]] virtual std::size_t count() const = 0;
    /// The type number of a record; 0 for an entity that the model has no class for.
    [[nodiscard]] virtual std::uint16_t classNumber(EntityIndex index) const = 0;
    /// Appends the places of all records with this type number, subclasses left out, in ascending order.
    /// Here it asks for the number of each record; a source that knows better does better.
    virtual void appendRecordsOfClass(std::uint16_t number, std::vector<EntityIndex>& records) const;
    /// Fills a new object of the record's class with the record's values.
    virtual void read(EntityIndex index, Data& data, FcBase& entity) = 0;
    /// Calls \p visit for each entity that an attribute of the record refers to, without making objects.
    /// \p slot is a slot of the class in this model, not of the file's own version.
    virtual void forEachReference(EntityIndex index, unsigned int slot,
                                  std::function<void(EntityIndex)> const& visit) const = 0;
    /// Appends a pair of target and record for each such reference of each of \p records. A source that knows
    /// better than asking for one record after the other does better.
    virtual void appendReferences(std::span<EntityIndex const> records, unsigned int slot,
                                  std::vector<std::pair<EntityIndex, EntityIndex>>& references) const;
    /// Appends those of \p records whose attribute refers to the record \p target, in their order. A source
    /// that knows better than asking each record does better.
    virtual void appendReferring(std::span<EntityIndex const> records, unsigned int slot, EntityIndex target,
                                 std::vector<EntityIndex>& referring) const;
    /// Takes the text of an attribute from the record, without making an object. No value for an unset one.
    /// \returns false when only the object tells; here always.
    virtual bool readText(EntityIndex index, unsigned int slot, std::optional<std::string>& text) const;
};

} // namespace qev::fc
