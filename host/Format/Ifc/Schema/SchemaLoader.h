#pragma once

#include "Format/Ifc/Schema/SchemaPset.h"

#include <mutex>

namespace qev::ifc {

/// Gives the versions of the standard by name. They are compiled in and read on first use.
///
/// Names are those of the files: "IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_TC1" and "IFC4X3_ADD2". The
/// model has the classes of `modelVersion`, and only that one comes with property and quantity sets: those of
/// the other releases would compete with them for the same objects. Look-ups may come from any thread.
class HOSTIFCSCHEMA_EXPORT SchemaLoader
{
public:
    /// The version whose classes the model has.
    static constexpr char const* modelVersion = "IFC4X3_TC1";

    SchemaLoader();
    ~SchemaLoader();
    SchemaLoader(SchemaLoader const&) = delete;
    SchemaLoader& operator=(SchemaLoader const&) = delete;

    /// The loader of the running application.
    static SchemaLoader& curr();

    /// A version with its sets; null when the name is unknown. Lives as long as the loader.
    def::SchemaPset* pSchemaFromName(std::string const& name);
    /// The classes of a version; null when the name is unknown.
    def::schema::Schema const* classesFromName(std::string const& name);

private:
    struct Version;

    [[nodiscard]] Version* find(std::string const& name);

    std::mutex m_mutex;
    std::vector<std::unique_ptr<Version>> m_versions;
};

} // namespace qev::ifc
