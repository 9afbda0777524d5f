#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace qev::test::reference {

/// The classes of one schema with their attributes, read from the notation of `data/schemas`.
///
/// Class names are given in capitals, as records have them.
class AttributeTable
{
public:
    struct Attribute
    {
        std::string name;

        /// As declared, for example `IfcLabel` or `list[1:?] of IfcLabel`.
        std::string type;
    };

    [[nodiscard]] static AttributeTable fromText(std::string_view text);

    /// The table for a file: \p schemaName is that of its header, \p folder holds the NAME.schema files. A
    /// release without a table of its own uses the nearest one. Throws std::runtime_error when there is no
    /// table.
    [[nodiscard]] static AttributeTable forSchema(std::string const& schemaName, std::string const& folder);

    /// The attributes in the order of a record's arguments; empty for an unknown class.
    [[nodiscard]] std::vector<Attribute> attributes(std::string const& className) const;

    [[nodiscard]] bool isA(std::string const& className, std::string_view base) const;

    /// The type in capitals as it stands in front of a value; a type that is another name for a measure gives
    /// the measure: `IfcPositiveLengthMeasure` stays, `IfcBoxAlignment` becomes `IFCLABEL`.
    [[nodiscard]] std::string measureOf(std::string const& type) const;

private:
    struct Entity
    {
        std::string supertype;
        std::vector<Attribute> own;
    };

    std::map<std::string, Entity> m_entities;
    std::map<std::string, std::string> m_types;
};

} // namespace qev::test::reference
