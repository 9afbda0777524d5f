#pragma once

#include "reference-reader/AttributeTable.h"
#include "reference-reader/ReferenceAttribute.h"
#include "reference-reader/ReferenceSet.h"
#include "reference-reader/StepDocument.h"
#include "reference-reader/UnitTable.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::test::reference {

/// Answers what a file says of an object, from a reading of its own that shares nothing with the product.
///
/// Plain and slow on purpose: the product is compared with it. Objects are named by the numbers of their
/// records, because a GlobalId may stand twice in a file.
///
///     ReferenceReader const reader = ReferenceReader::fromFile("office.ifc", "data/schemas");
///     for (std::uint64_t const object : reader.objects())
///         for (ReferenceSet const& set : reader.sets(object))
///             compare(set);
class ReferenceReader
{
public:
    ReferenceReader(StepDocument document, AttributeTable table);

    /// Throws std::runtime_error when the file or the table of its schema cannot be read.
    [[nodiscard]] static ReferenceReader fromFile(std::string const& path, std::string const& schemaFolder);

    ReferenceReader(ReferenceReader const&) = delete;
    ReferenceReader& operator=(ReferenceReader const&) = delete;

    [[nodiscard]] StepDocument const& document() const { return m_document; }
    [[nodiscard]] UnitTable const& units() const { return m_units; }

    /// All objects and types (everything that is an IfcObjectDefinition), in the order of the file.
    [[nodiscard]] std::vector<std::uint64_t> const& objects() const { return m_objects; }

    /// The first object with the GlobalId.
    [[nodiscard]] std::optional<std::uint64_t> find(std::string_view globalId) const;

    [[nodiscard]] std::string globalId(std::uint64_t object) const;

    /// In capitals, as written.
    [[nodiscard]] std::string keyword(std::uint64_t object) const;

    /// The type of an object; the first, when the file gives several.
    [[nodiscard]] std::optional<std::uint64_t> typeOf(std::uint64_t object) const;

    /// The sets of the object itself, without those of its type: of an object those that relations attach, in
    /// the order of the relations; of a type those it holds.
    [[nodiscard]] std::vector<ReferenceSet> sets(std::uint64_t object) const;

    /// In the order of the schema; empty for a class that the schema does not have.
    [[nodiscard]] std::vector<ReferenceAttribute> attributes(std::uint64_t object) const;
    [[nodiscard]] std::optional<ReferenceAttribute> attribute(std::uint64_t object,
                                                              std::string_view name) const;

private:
    void collectObjects();
    void collectRelations();
    void attach(StepRecord const& relation);

    [[nodiscard]] ReferenceSet readSet(StepRecord const& record) const;
    [[nodiscard]] std::vector<ReferenceProperty> readProperties(StepArgument const& list, int depth) const;
    [[nodiscard]] ReferenceProperty readProperty(StepRecord const& record, int depth) const;
    void readQuantity(StepRecord const& record, ReferenceProperty& property) const;

    [[nodiscard]] ReferenceValue readValue(StepArgument const& written, StepArgument const& unit,
                                           std::string const& declared = {}) const;
    [[nodiscard]] std::vector<ReferenceValue> readValues(StepArgument const& list,
                                                         StepArgument const& unit) const;
    [[nodiscard]] std::optional<ReferenceValue> readOptional(StepArgument const& written,
                                                             StepArgument const& unit) const;

    StepDocument m_document;
    AttributeTable m_table;
    UnitTable m_units;
    std::vector<std::uint64_t> m_objects;
    std::map<std::string, std::uint64_t, std::less<>> m_objectOfGlobalId;
    std::map<std::uint64_t, std::vector<std::uint64_t>> m_setsOfObject;
    std::map<std::uint64_t, std::uint64_t> m_typeOfObject;
};

} // namespace qev::test::reference
