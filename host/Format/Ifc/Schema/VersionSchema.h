#pragma once

#include "Format/Ifc/Schema/ClassMapping.h"
#include "Format/Ifc/Schema/Schema.h"

#include <optional>
#include <unordered_map>

namespace qev::ifc {

struct MappingTable;

/// How the records of files of one version stand in the model, and the model's objects in such files.
class HOSTIFCSCHEMA_EXPORT VersionSchema
{
public:
    /// A version with the text of its table (\see data/README.md); the text is empty for the model's own.
    struct Source
    {
        def::schema::Schema const* schema;
        std::string_view mappingText;
    };

    /// \p sources has at least one element. Classes that the first one does not know, or that are abstract
    /// there, are looked for in those behind it: drafts of a version mix classes of several. All schemas have
    /// to outlive this object.
    VersionSchema(def::schema::Schema const& model, std::vector<Source> const& sources);
    ~VersionSchema();
    VersionSchema(VersionSchema const&) = delete;
    VersionSchema& operator=(VersionSchema const&) = delete;

    [[nodiscard]] def::schema::Schema const& modelSchema() const { return m_model; }
    /// The version that comes first.
    [[nodiscard]] def::schema::Schema const& fileSchema() const { return m_file; }

    /// All about the records of a keyword in capitals; null when the keyword is unknown.
    [[nodiscard]] ClassMapping const* find(std::string_view keywordUpper) const;
    /// How a new object of a class of the model is written: as its own class, else as the nearest superclass
    /// that the version has. Null when there is none that can be instantiated.
    [[nodiscard]] ClassMapping const* forNewObject(unsigned int classNumber) const;

    /// The mappings of all keywords.
    [[nodiscard]] std::vector<ClassMapping> const& mappings() const { return m_mappings; }

private:
    void addClasses(Source const& source);
    [[nodiscard]] ClassMapping mappingOf(def::schema::Entity const& entity, MappingTable const& table) const;
    void pairSlots(ClassMapping& mapping, MappingTable const& table) const;
    void chooseClassesForNewObjects();

    def::schema::Schema const& m_model;
    def::schema::Schema const& m_file;
    std::vector<ClassMapping> m_mappings;
    // Positions in m_mappings. The keywords are those of the schemas.
    std::unordered_map<std::string_view, std::size_t> m_positions;
    // By class number, positions in m_mappings.
    std::vector<std::optional<std::size_t>> m_forNewObjects;
};

} // namespace qev::ifc
