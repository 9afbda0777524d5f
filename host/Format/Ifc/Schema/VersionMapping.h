#pragma once

#include "Format/Ifc/Schema/VersionSchema.h"

#include <map>
#include <mutex>

namespace qev::ifc {

class SchemaLoader;

/// Finds the version of the standard that a file names in its header.
class HOSTIFCSCHEMA_EXPORT VersionMapping
{
public:
    enum class Certainty
    {
        /// The version is known.
        Exact,
        /// An earlier edition or a draft of a known version; a few records may not fit.
        Close,
        /// The name says nothing; every class of any known version is accepted.
        Unknown
    };

    struct Version
    {
        /// Never null; lives as long as the mapping.
        VersionSchema const* schema = nullptr;
        Certainty certainty = Certainty::Unknown;
    };

    /// \p loader has to outlive the mapping.
    explicit VersionMapping(SchemaLoader& loader);
    ~VersionMapping();
    VersionMapping(VersionMapping const&) = delete;
    VersionMapping& operator=(VersionMapping const&) = delete;

    /// The mapping of the running application.
    static VersionMapping& curr();

    /// The version for a name such as "IFC2X3" or "IFC4X3_ADD2". Letters of any case and what follows a blank
    /// or a brace do not matter. Any thread may ask.
    [[nodiscard]] Version fromFileSchema(std::string_view name);

private:
    [[nodiscard]] VersionSchema const& schemaOf(std::vector<std::string> const& versions);

    SchemaLoader& m_loader;
    std::mutex m_mutex;
    // By the names of the versions in their order, made on first use.
    std::map<std::vector<std::string>, std::unique_ptr<VersionSchema>> m_schemas;
};

} // namespace qev::ifc
